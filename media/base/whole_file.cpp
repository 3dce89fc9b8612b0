#include "media/base/whole_file.h"

#include "media/base/failures.h"
#include "media/base/libav.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <new>

namespace ov1::media
{

namespace
{

struct file_closer
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using file_ptr = std::unique_ptr<std::FILE, file_closer>;

constexpr std::uintmax_t largest = INT_MAX - AV_INPUT_BUFFER_PADDING_SIZE; // a packet of libav counts its bytes in int

} // namespace

result<whole_file> whole_file::read(const std::string& path)
{
    std::error_code code;
    const std::filesystem::file_type type = std::filesystem::status(path, code).type();
    if (type == std::filesystem::file_type::directory)
        return unreadable("is a folder", "name the pictures in it");
    if (std::filesystem::exists(path, code) && type != std::filesystem::file_type::regular)
        return unreadable("is not a regular file"); // opening a pipe would wait for its other end
    const file_ptr file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr)
        return unreadable(errno == ENOENT ? "no such file" : std::strerror(errno));
    const std::uintmax_t size = std::filesystem::file_size(path, code);
    if (code)
        return unreadable("its size is not known");
    if (size == 0)
        return unreadable("the file is empty");
    if (size > largest)
        return unreadable("the file is larger than 2 GB");
    whole_file whole;
    // A file may be larger than the memory: a failure, not an exception.
    whole.data.reset(new (std::nothrow) std::uint8_t[size + AV_INPUT_BUFFER_PADDING_SIZE]);
    if (whole.data == nullptr)
        return unreadable("not enough memory for the file");
    if (std::fread(whole.data.get(), 1, size, file.get()) != size)
        return unreadable("the file could not be read to its end");
    // libav's parsers read in whole words, beyond the end.
    std::memset(whole.data.get() + size, 0, AV_INPUT_BUFFER_PADDING_SIZE);
    whole.count = size;
    return whole;
}

} // namespace ov1::media
