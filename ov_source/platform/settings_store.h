// Persistent settings in one file that several processes may use at the same time.
#pragma once

#include "platform/settings_text.h"

#include <string>

namespace ov1
{

/// Every call reads the file again, so that changes of other processes are seen. Changes hold a lock file and replace
/// the settings file as a whole, so that no process loses another's keys and a full disk loses none. Any thread.
class settings_store
{
public:
    /// The first change creates the file and its folder. With an empty path nothing can be stored.
    explicit settings_store(std::string path)
        : path(std::move(path))
    {
    }

    /// Return false, with nothing changed, for an empty key and when the file cannot be read, locked or written.
    [[nodiscard]] bool set(const std::string& key, setting value) const;
    [[nodiscard]] bool remove(const std::string& key) const;

    /// Returns true exactly when the key has a value of kind T, one of the alternatives of `setting`.
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
    /// Reads the whole file; a missing one leaves the text empty. Returns false if it cannot be read.
    bool read(settings_text& text) const;
    /// Locks, reads, edits, and writes the file if its text has changed.
    template <typename Edit>
    bool change(const std::string& key, const Edit& edit) const;

    std::string path;
};

} // namespace ov1
