// All services of the operating system that the program uses, except drawing.
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

/// Settings, resources, folders, alerts, screen and system names. Failures are reported only through the return value:
/// nothing is thrown or shown, and output references keep their value. Texts are UTF-8; paths are bytes in the system's
/// encoding. Every operation may be called on any thread, except alert_box and get_screen_dimensions, which must be
/// called on the thread of the window.
class iutils
{
public:
    virtual ~iutils() = default;

    /// The utilities of this process, created at the first call and never destroyed. A utils_guard replaces them.
    static iutils& get_instance();

    /// Selects one language from a localised literal such as "Save{en: as}{de: unter}". Text outside the braces is
    /// kept, pieces in other languages are dropped. There is no fallback: a literal without a piece in the language
    /// gives only its common text. Braces inside a piece must be balanced.
    static std::string translate(language_id language, std::string_view text);

    /// Settings of this product. They return false for an empty key and when the settings cannot be read or written;
    /// the getters also when the key is missing or its value has another kind.
    [[nodiscard]] virtual bool set_bytes(const std::string& key, std::span<const std::uint8_t> bytes) = 0;
    [[nodiscard]] virtual bool get_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) = 0;
    /// Removes a key of any kind. Removing a key that does not exist succeeds.
    [[nodiscard]] virtual bool del_bytes(const std::string& key) = 0;
    [[nodiscard]] virtual bool set_string(const std::string& key, const std::string& text) = 0;
    [[nodiscard]] virtual bool get_string(const std::string& key, std::string& text) = 0;

    /// The same for the settings that all products of the vendor share.
    [[nodiscard]] virtual bool set_vendor_bytes(const std::string& key, std::span<const std::uint8_t> bytes) = 0;
    [[nodiscard]] virtual bool get_vendor_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) = 0;
    [[nodiscard]] virtual bool del_vendor_key(const std::string& key) = 0;
    [[nodiscard]] virtual bool set_vendor_string(const std::string& key, const std::string& text) = 0;
    [[nodiscard]] virtual bool get_vendor_string(const std::string& key, std::string& text) = 0;
    [[nodiscard]] virtual bool set_vendor_uint32(const std::string& key, std::uint32_t value) = 0;
    [[nodiscard]] virtual bool get_vendor_uint32(const std::string& key, std::uint32_t& value) = 0;

    /// The system's family, "Linux".
    virtual std::string get_os_name_string() = 0;
    /// The version of the running system: major.minor.patch.
    [[nodiscard]] virtual bool get_os_version_string(std::string& text) = 0;
    /// The name and version that users know the system by, with its word size: "Debian GNU/Linux 12 (bookworm) (64
    /// Bits)".
    [[nodiscard]] virtual bool get_os_string(std::string& text) = 0;

    /// A modal alert with one button.
    virtual bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                           const std::string& button) = 0;
    /// A modal alert; a button without text is not shown. Returns true exactly when the first button was chosen.
    virtual bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                           const std::string& first_button, const std::string& second_button) = 0;

    /// Reads a file in the top folder of the product's resources; the name includes the extension.
    [[nodiscard]] virtual bool get_resource(const std::string& name, std::vector<std::uint8_t>& bytes) = 0;
    /// Opens a web page or a document with the user's preferred program and does not wait for it.
    virtual void open_url(const std::string& text) = 0;
    virtual bool is_main_thread() = 0;
    /// Creates one directory. Returns false for an empty path, an existing one, and one whose parent is missing.
    [[nodiscard]] virtual bool create_dir(const std::string& path) = 0;
    virtual const std::string& get_path_separator() = 0;
    /// Size in unscaled pixels of the screen that shows most of the window, or of the main screen for a null
    /// window.
    virtual void get_screen_dimensions(void* window, int& width, int& height) = 0;
    /// The user's directory that all products of the vendor share, created if missing; empty without a home folder.
    virtual std::string get_common_directory() = 0;
    /// Replaces the outputs with the entries of a directory, without "." and "..", in the system's order. Symbolic
    /// links count as files. One of the outputs may be null. full_paths puts the directory before each name.
    [[nodiscard]] virtual bool list_dir(const std::string& path, std::vector<std::string>* files,
                                        std::vector<std::string>* directories, bool full_paths) = 0;
    /// Screen pixels per unit of the editor's layout.
    virtual double get_dpi_scale() = 0;
    /// The folder that get_resource reads, for resources in sub-folders; empty if the resources are not in a folder.
    virtual std::string get_resource_directory() { return {}; }

private:
    friend class utils_guard;

    /// Installs another instance, or the system's own for null; returns the previous one.
    static iutils* exchange_instance(iutils* replacement);
};

/// Creates the utilities of the system that the program was built for; get_instance calls it once.
std::unique_ptr<iutils> make_system_utils();

} // namespace ov1
