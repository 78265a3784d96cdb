# steps.sh: how ./oxa runs and reports its steps. Sourced, not run.

OXA_LOGS=build/logs
OXA_FAILED=()

say() { printf '%s\n' "$*"; }
die() { printf 'oxa: %s\n' "$*" >&2; exit 1; }

# step NAME COMMAND...: one line on success; on failure the end of the log, and the name is remembered.
step() {
    local name=$1 began=$SECONDS log
    shift
    log=$OXA_LOGS/${name// /-}.log
    mkdir -p "$OXA_LOGS"
    if "$@" >"$log" 2>&1 </dev/null; then
        printf '%-28s ok      %4d s\n' "$name" $((SECONDS - began))
        return 0
    fi
    printf '%-28s FAILED  %4d s   log: %s\n' "$name" $((SECONDS - began)) "$log"
    printf -- '--- the last lines of %s\n' "$log"
    tail -n "${OXA_LOG_LINES:-120}" "$log"
    printf -- '---\n'
    OXA_FAILED+=("$name")
    return 1
}

# need NAME COMMAND...: a step without which the rest makes no sense.
need() { step "$@" || die "stopped at the step '$1'"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "packages are missing: run as root, or install sudo" >&2
        return 1
    fi
}

missing_packages() {
    local package
    while read -r package; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed' || printf '%s\n' "$package"
    done < <(grep -v '^#' tools/packages.txt)
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} = 0 ] && return 0
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

packages() {
    need "packages" install_packages
    mapfile -t still < <(missing_packages)
    [ ${#still[@]} = 0 ] || die "not installed: ${still[*]}"
}

configure_and_build() { # PRESET [TARGET...]
    local preset=$1
    shift
    cmake --preset "$preset" || return 1
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@"
    else
        cmake --build --preset "$preset"
    fi
}

sources() { find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print | sort; }
check_format() { sources | grep -v '/resource\.h$' | xargs clang-format-14 --dry-run -Werror; }

wine_prefix() { tools/wine-base "$PWD/build/wine/base"; }
headless() { tools/wine-run "$@"; }

native_tests() { # PRESET
    ctest --test-dir "build/$1" --output-on-failure -j "$(nproc)"
}

# A program with windows gets a second try: the foreground belongs to the whole machine. A program that needed it is named in the log.
window_tests() {
    ctest --test-dir build/windows --output-on-failure -j "$(nproc)" --repeat until-pass:2
}

fuzz_all() { # SECONDS
    local target name pids=() bad=0
    for target in build/fuzz/fuzz/fuzz_*; do
        [ -x "$target" ] && [ ! -d "$target" ] || continue
        name=$(basename "$target")
        mkdir -p "build/fuzz/found/$name"
        "$target" -max_total_time="$1" -timeout=60 -rss_limit_mb=3000 -print_final_stats=1 -verbosity=0 \
            -artifact_prefix="build/fuzz/found/$name-" "build/fuzz/found/$name" "fuzz/corpus/${name#fuzz_}" &
        pids+=($!)
    done
    [ ${#pids[@]} -gt 0 ] || { echo "no fuzz target was built" >&2; return 1; }
    local pid
    for pid in "${pids[@]}"; do wait "$pid" || bad=1; done
    return $bad
}

gallery_shots() { # FOLDER
    local folder=$1
    rm -rf "$folder"
    mkdir -p "$folder"
    headless build/windows/bin/oxa-gallery.exe --shots "Z:$(realpath "$folder" | tr / '\\')" || return 1
    ls "$folder"/*.png
}

# The zip, and the first host built from nothing but what was unpacked from it.
make_sdk() {
    local folder=build/sdk name=oxa10-sdk triple=x86_64-w64-mingw32
    rm -rf "$folder" "build/$name.zip"
    cmake --install build/windows --component sdk --strip --prefix "$folder/$name" || return 1
    (cd "$folder" && cmake -E tar cf "../$name.zip" --format=zip "$name") || return 1
    mkdir "$folder/unpacked"
    (cd "$folder/unpacked" && cmake -E tar xf "../../$name.zip") || return 1
    cmake -S "$folder/unpacked/$name/first-host" -B "$folder/first-host" -G Ninja \
        -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_CXX_COMPILER=$triple-g++-posix -DCMAKE_RC_COMPILER=$triple-windres \
        -DCMAKE_PREFIX_PATH="$PWD/$folder/unpacked/$name" &&
        cmake --build "$folder/first-host"
}

# The counts of every test program that ran, from the reports that the programs wrote themselves.
count_tests() {
    cat build/{native,asan,windows}/test-results/*.xml 2>/dev/null | awk '
        /<testsuites / {
            match($0, / tests="[0-9]+"/);    tests += substr($0, RSTART + 8, RLENGTH - 9)
            match($0, / failures="[0-9]+"/); bad   += substr($0, RSTART + 11, RLENGTH - 12)
            match($0, / errors="[0-9]+"/);   bad   += substr($0, RSTART + 9, RLENGTH - 10)
        }
        END { printf "%d passed, %d failed\n", tests - bad, bad }'
}

finish() {
    local counts
    counts=$(count_tests)
    if [ ${#OXA_FAILED[@]} -gt 0 ]; then
        say "failed steps: ${OXA_FAILED[*]}"
        say "tests: $counts"
        exit 1
    fi
    say "tests: $counts"
}
