// The commands of oxa-gif.
#pragma once

#include <filesystem>
#include <vector>

struct GifTool
{
    enum Status : int
    {
        Done = 0,
        Failed = 1,
        WrongUsage = 2,
    };

    /// Carries out what the arguments (without the program's name) say. What goes wrong is one line on standard error.
    static Status Run(const std::vector<std::filesystem::path>& arguments);
};
