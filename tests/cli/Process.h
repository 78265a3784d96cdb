// Runs a program with bytes on its standard input, and gathers what it says.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A folder for the files of one test, which goes with it.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::string path(const std::string& name) const { return (m_path / name).string(); }
    void write(const std::string& name, const std::string& bytes) const;
    /// Empty when there is no such file.
    std::string read(const std::string& name) const;
    bool has(const std::string& name) const { return std::filesystem::exists(m_path / name); }

private:
    std::filesystem::path m_path;
};

struct Outcome
{
    int status; // -1: the program did not end by itself
    std::string output;
    std::string errors;
};

/// Standard input, output and error are files, so that nothing can wait for anything. `outputPath` takes the place of the
/// file for standard output.
Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments, const std::string& input = {},
                   const std::string& outputPath = {});

#ifndef _WIN32
/// Standard output is a pipe whose reader went away.
Outcome runIntoClosedPipe(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& input);
#endif
