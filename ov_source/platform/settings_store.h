// A small persistent store of settings: one file that several processes share.
#pragma once

#include "platform/settings_text.h"

#include <string>

namespace ov1
{

/// Every call reads the file anew, so that what another process wrote is seen; a change is made under a lock file and
/// written whole, so that no process loses another's keys and a full disk loses none. Any thread.
class settings_store
{
public:
    /// The file and its folder are made by the first change. Without a path nothing can be stored.
    explicit settings_store(std::string path)
        : path(std::move(path))
    {
    }

    /// False for an empty key, and where the file cannot be read, locked or written; then nothing changed.
    [[nodiscard]] bool set(const std::string& key, setting value) const;
    [[nodiscard]] bool remove(const std::string& key) const;

    /// True exactly when there is a value of the kind T (one of setting's) under the key.
    template <typename T>
    [[nodiscard]] bool get(const std::string& key, T& value) const
    {
        settings_text text;
        if (key.empty() || !read(text))
            return false;
        const setting* found = text.find(key);
        if (found == nullptr || !std::holds_alternative<T>(*found))
            return false;
        value = std::get<T>(*found);
        return true;
    }

private:
    bool read(settings_text& text) const;
    template <typename Edit>
    bool change(const std::string& key, const Edit& edit) const;

    std::string path;
};

} // namespace ov1
