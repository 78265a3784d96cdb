// Processes of the build machine.
#ifndef _WIN32

#include "Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace
{
/// What a program gets for its standard streams.
class Redirections
{
public:
    Redirections() { posix_spawn_file_actions_init(&m_actions); }
    ~Redirections() { posix_spawn_file_actions_destroy(&m_actions); }
    Redirections(const Redirections&) = delete;
    Redirections& operator=(const Redirections&) = delete;

    void read(int stream, const std::string& path)
    {
        posix_spawn_file_actions_addopen(&m_actions, stream, path.c_str(), O_RDONLY, 0);
    }
    void write(int stream, const std::string& path)
    {
        posix_spawn_file_actions_addopen(&m_actions, stream, path.c_str(), O_WRONLY | O_CREAT, 0600);
    }
    void pass(int stream, int descriptor) { posix_spawn_file_actions_adddup2(&m_actions, descriptor, stream); }

    int run(const std::string& program, const std::vector<std::string>& arguments) const
    {
        std::vector<std::string> words{program};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        pid_t child = 0;
        if (::posix_spawn(&child, program.c_str(), &m_actions, nullptr, pointers.data(), environ) != 0)
            throw std::runtime_error("cannot start " + program);
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    posix_spawn_file_actions_t m_actions;
};
} // namespace

Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments, const std::string& input,
                   const std::string& outputPath)
{
    const TestFolder folder;
    folder.write("in", input);
    Redirections streams;
    streams.read(0, folder.path("in"));
    streams.write(1, outputPath.empty() ? folder.path("out") : outputPath);
    streams.write(2, folder.path("err"));
    const int status = streams.run(program, arguments);
    return {status, folder.read("out"), folder.read("err")};
}

Outcome runIntoClosedPipe(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& input)
{
    const TestFolder folder;
    folder.write("in", input);
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0)
        throw std::runtime_error("no pipe for the test");
    ::close(ends[0]);
    Redirections streams;
    streams.read(0, folder.path("in"));
    streams.pass(1, ends[1]);
    streams.write(2, folder.path("err"));
    const int status = streams.run(program, arguments);
    ::close(ends[1]);
    return {status, {}, folder.read("err")};
}

#endif
