#include "platform/settings_store.h"

#include "platform/atomic_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace ov1
{

namespace
{

/// A larger file is none of our settings.
constexpr std::size_t size_limit = std::size_t{64} << 20;

/// Locks a file beside the settings. The file is never removed: otherwise two processes could lock two different files.
class file_lock
{
public:
    explicit file_lock(const std::string& path)
        : descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666))
    {
        // Waits until other processes have finished their changes.
        while (descriptor >= 0 && flock(descriptor, LOCK_EX) != 0)
        {
            if (errno == EINTR)
                continue;
            close(descriptor);
            descriptor = -1;
        }
    }
    ~file_lock()
    {
        if (descriptor >= 0)
            // Closing the file releases the lock.
            close(descriptor);
    }
    file_lock(const file_lock&) = delete;
    file_lock& operator=(const file_lock&) = delete;

    bool is_held() const { return descriptor >= 0; }

private:
    int descriptor;
};

} // namespace

bool settings_store::read(settings_text& text) const
{
    std::error_code error;
    const auto kind = std::filesystem::status(path, error).type();
    // A missing file is an empty one; an empty path is a failure.
    if (kind == std::filesystem::file_type::not_found)
        return !path.empty();
    if (kind != std::filesystem::file_type::regular)
        return false;
    const auto bytes = read_file(path, size_limit);
    if (!bytes)
        return false;
    text = settings_text({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    return true;
}

template <typename Edit>
bool settings_store::change(const std::string& key, const Edit& edit) const
{
    if (key.empty() || path.empty())
        return false;
    std::error_code error;
    // If this fails, the lock file cannot be opened either.
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    const file_lock lock(path + ".lock");
    settings_text text;
    // A file that cannot be read is not overwritten.
    if (!lock.is_held() || !read(text))
        return false;
    const std::string before = text.to_text();
    edit(text);
    const std::string after = text.to_text();
    // Unchanged text is not written again.
    return after == before || replace_file(path, {reinterpret_cast<const std::uint8_t*>(after.data()), after.size()});
}

bool settings_store::set(const std::string& key, setting value) const
{
    return change(key, [&](settings_text& text) { text.set(key, std::move(value)); });
}

bool settings_store::remove(const std::string& key) const
{
    return change(key, [&](settings_text& text) { text.remove(key); });
}

} // namespace ov1
