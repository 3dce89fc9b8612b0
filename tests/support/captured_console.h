// A console whose lines end in two texts.
#pragma once

#include "command_line/console.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace ov1
{

/// A stream in memory.
class memory_stream
{
public:
    ~memory_stream()
    {
        std::fclose(file);
        std::free(data);
    }
    memory_stream& operator=(memory_stream&&) = delete;

    std::FILE* get() const { return file; }
    std::string text() const
    {
        std::fflush(file);
        return {data, size};
    }

private:
    char* data = nullptr;
    std::size_t size = 0;
    std::FILE* file = open_memstream(&data, &size);
};

struct captured_console
{
    memory_stream out;
    memory_stream err;
    ov1::console console{out.get(), err.get()};
};

} // namespace ov1
