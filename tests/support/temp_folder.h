// A folder of its own for each test, gone with it.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace ov1
{

class temp_folder
{
public:
    temp_folder()
        : path((std::filesystem::temp_directory_path() / "veridial_test_XXXXXX").string())
    {
        if (mkdtemp(path.data()) == nullptr)
            std::abort();
    }
    ~temp_folder() { std::filesystem::remove_all(path, ignored); }
    temp_folder& operator=(temp_folder&&) = delete;

    std::string operator/(std::string_view name) const { return path + '/' + std::string(name); }

    /// Writes a file below the folder, making what lies between, and gives its path.
    std::string with_file(std::string_view name, std::string_view text) const
    {
        const std::string file = *this / name;
        std::filesystem::create_directories(std::filesystem::path(file).parent_path());
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

    /// The number of entries in the folder itself.
    auto count() const { return std::distance(std::filesystem::directory_iterator(path), {}); }

    std::string path;

private:
    std::error_code ignored;
};

inline std::string text_of_file(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace ov1
