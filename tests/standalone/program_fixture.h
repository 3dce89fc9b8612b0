// The program as a user runs it, in a folder of its own.
#pragma once

#include "support/sanitizer_lines.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace ov1
{

namespace fs = std::filesystem;

struct outcome
{
    int code = -1;
    std::string out;
    std::string err;
};

inline std::string read_text(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class veridial_program : public testing::Test
{
protected:
    void SetUp() override { fs::current_path(fs::path(folder / "")); }
    void TearDown() override { fs::current_path("/"); }

    /// Runs a shell line in the test's folder; $V is the program.
    outcome run(const std::string& line) const
    {
        const std::string whole = "export XDG_DATA_HOME=$PWD/data XDG_CONFIG_HOME=$PWD/config; V=" VERIDIAL_PROGRAM
                                  "; { " +
                                  line + "; } >stdout.txt 2>stderr.txt";
        const int status = std::system(whole.c_str());
        outcome o{WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), read_text("stdout.txt"),
                  read_text("stderr.txt")};
        drop_sanitizer_lines(o.err);
        return o;
    }

    /// A binary PPM of three channels that differ, which the program reads.
    void write_picture(const std::string& name, int width, int height) const
    {
        std::ofstream file(name, std::ios::binary);
        file << "P6\n" << width << ' ' << height << "\n255\n";
        for (int i = 0; i < width * height; ++i)
            for (const int v : {i * 7 % 256, i * 13 % 256, 255 - i * 5 % 256})
                file.put(static_cast<char>(v));
    }

    std::vector<std::string> entries() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator("."))
            if (const auto name = entry.path().filename().string();
                name != "stdout.txt" && name != "stderr.txt" && name != "data")
                names.push_back(name);
        std::sort(names.begin(), names.end());
        return names;
    }

    const temp_folder folder;
};

} // namespace ov1
