// A folder that no other test has.
#include "Process.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

TestFolder::TestFolder()
{
    std::random_device random;
    m_path = std::filesystem::temp_directory_path() / ("oxa-tool-" + std::to_string(random()));
    if (!std::filesystem::create_directory(m_path))
        throw std::runtime_error("no folder for the test");
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void TestFolder::write(const std::string& name, const std::string& bytes) const
{
    std::ofstream(m_path / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string TestFolder::read(const std::string& name) const
{
    std::ifstream file(m_path / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}
