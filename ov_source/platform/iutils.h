// The single point of contact with the operating system for everything that is not drawing.
#pragma once

#include "shared/language_id.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// Settings, resources, folders, alerts, screen and system names. Failures are told by the result alone: nothing is
/// thrown or shown, and what goes out through a reference keeps its value. Texts are UTF-8, paths are bytes. Every
/// operation may be called from any thread, except alert_box and get_screen_dimensions: those belong to the thread of
/// the window.
class iutils
{
public:
    virtual ~iutils() = default;

    /// The utilities of this process, made at the first call and never destroyed. A utils_guard replaces them.
    static iutils& get_instance();

    /// Picks the pieces of one language out of a localised literal, "{en:...}{de:...}". Text outside the pieces is
    /// kept, pieces of other languages are dropped, and there is no fallback: a literal without a piece in the language
    /// gives its common text alone. Braces inside a piece must be balanced.
    static std::string translate(language_id language, std::string_view text);

    /// Settings of this product. False for an empty key, and where the settings cannot be read or written; the getters
    /// also where the key is missing or holds another kind of value.
    [[nodiscard]] virtual bool set_bytes(const std::string& key, std::span<const std::uint8_t> bytes) = 0;
    [[nodiscard]] virtual bool get_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) = 0;
    /// Removes a key of any kind; removing what is not there succeeds.
    [[nodiscard]] virtual bool del_bytes(const std::string& key) = 0;
    [[nodiscard]] virtual bool set_string(const std::string& key, const std::string& text) = 0;
    [[nodiscard]] virtual bool get_string(const std::string& key, std::string& text) = 0;

    /// The same for the settings that all products of the maker share.
    [[nodiscard]] virtual bool set_vendor_bytes(const std::string& key, std::span<const std::uint8_t> bytes) = 0;
    [[nodiscard]] virtual bool get_vendor_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) = 0;
    [[nodiscard]] virtual bool del_vendor_key(const std::string& key) = 0;
    [[nodiscard]] virtual bool set_vendor_string(const std::string& key, const std::string& text) = 0;
    [[nodiscard]] virtual bool get_vendor_string(const std::string& key, std::string& text) = 0;
    [[nodiscard]] virtual bool set_vendor_uint32(const std::string& key, std::uint32_t value) = 0;
    [[nodiscard]] virtual bool get_vendor_uint32(const std::string& key, std::uint32_t& value) = 0;

    /// The system's family, "Linux".
    virtual std::string get_os_name_string() = 0;
    /// The running system's version, major, minor and patch joined by dots.
    [[nodiscard]] virtual bool get_os_version_string(std::string& text) = 0;
    /// The system as its users know it, with its word size: "Debian GNU/Linux 12 (bookworm) (64 Bits)".
    [[nodiscard]] virtual bool get_os_string(std::string& text) = 0;

    /// A modal alert with one button.
    virtual bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                           const std::string& button) = 0;
    /// A modal alert; a button without a text is not shown. True exactly when the first button was chosen.
    virtual bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                           const std::string& first_button, const std::string& second_button) = 0;

    /// Reads a file from the top level of the product's resources, by its name with extension.
    [[nodiscard]] virtual bool get_resource(const std::string& name, std::vector<std::uint8_t>& bytes) = 0;
    /// Opens a web page or a document with the program that the user prefers for it, and does not wait for it.
    virtual void open_url(const std::string& text) = 0;
    virtual bool is_main_thread() = 0;
    /// Makes one directory. False for an empty path, for one that exists already, and where its parent is missing.
    [[nodiscard]] virtual bool create_dir(const std::string& path) = 0;
    virtual const std::string& get_path_separator() = 0;
    /// Size in unscaled pixels of the screen that shows most of the window, or of the main screen without one.
    virtual void get_screen_dimensions(void* window, int& width, int& height) = 0;
    /// A directory of the user's that all products of the maker share; made if missing, empty if there is no home.
    virtual std::string get_common_directory() = 0;
    /// Replaces what is in the outputs by the entries of a directory, without "." and "..", in the system's order.
    /// Symbolic links count as files. Needs a path and at least one output.
    [[nodiscard]] virtual bool list_dir(const std::string& path, std::vector<std::string>* files,
                                        std::vector<std::string>* directories, bool full_paths) = 0;
    /// How many screen pixels one unit of the editor's layout takes.
    virtual double get_dpi_scale() = 0;
    /// The folder that get_resource reads, for resources in folders of their own; empty where they lie in no folder.
    virtual std::string get_resource_directory() { return {}; }

private:
    friend class utils_guard;

    /// Puts another instance in place, or the system's own for null; gives what stood there.
    static iutils* exchange_instance(iutils* replacement);
};

/// The utilities of the system that this was built for; get_instance calls it once.
std::unique_ptr<iutils> make_system_utils();

} // namespace ov1
