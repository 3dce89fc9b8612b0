// The utilities on macOS.
#pragma once

#include "platform/iutils.h"

namespace ov1
{

/// Settings are the user defaults of two suites; with an empty suite name the settings of that kind can be neither read
/// nor written. Resources are in the main bundle. A window handle is an NSView or an NSWindow.
class cutils_mac : public iutils
{
public:
    /// The suites are opened here and released by the destructor.
    cutils_mac(const std::string& vendor_suite, const std::string& product_suite);
    ~cutils_mac() override;
    cutils_mac(const cutils_mac&) = delete;
    cutils_mac& operator=(const cutils_mac&) = delete;

    bool set_bytes(const std::string& key, std::span<const std::uint8_t> bytes) override;
    /// A value of another class than the getter's counts as missing.
    bool get_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) override;
    bool del_bytes(const std::string& key) override;
    bool set_string(const std::string& key, const std::string& text) override;
    bool get_string(const std::string& key, std::string& text) override;
    bool set_vendor_bytes(const std::string& key, std::span<const std::uint8_t> bytes) override;
    bool get_vendor_bytes(const std::string& key, std::vector<std::uint8_t>& bytes) override;
    bool del_vendor_key(const std::string& key) override;
    bool set_vendor_string(const std::string& key, const std::string& text) override;
    bool get_vendor_string(const std::string& key, std::string& text) override;
    bool set_vendor_uint32(const std::string& key, std::uint32_t value) override;
    /// Fails for a number outside 0..2^32 - 1 as well.
    bool get_vendor_uint32(const std::string& key, std::uint32_t& value) override;
    /// "macOS"
    std::string get_os_name_string() override;
    /// Always succeeds.
    bool get_os_version_string(std::string& text) override;
    /// "Mac OS BUILD ", the version of AppKit as a whole number, and " (64 Bits)".
    bool get_os_string(std::string& text) override;
    /// The alert is modal for the whole program; the parent window is ignored.
    bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                   const std::string& button) override;
    bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                   const std::string& first_button, const std::string& second_button) override;
    /// The extension is the part after the last dot.
    bool get_resource(const std::string& name, std::vector<std::uint8_t>& bytes) override;
    /// A text that is not a URL is opened as a file.
    void open_url(const std::string& text) override;
    bool is_main_thread() override;
    /// Accessible to all users, whatever the umask of the process.
    bool create_dir(const std::string& path) override;
    /// "/"
    const std::string& get_path_separator() override;
    /// In points.
    void get_screen_dimensions(void* window, int& width, int& height) override;
    /// ~/Library/Application Support/Orvane
    std::string get_common_directory() override;
    bool list_dir(const std::string& path, std::vector<std::string>* files, std::vector<std::string>* directories,
                  bool full_paths) override;
    /// Always 1: the system scales windows itself.
    double get_dpi_scale() override;
    std::string get_resource_directory() override;

private:
    void* const vendor_domain;  ///< NSUserDefaults, or null
    void* const product_domain; ///< likewise
};

/// The suites of this vendor and this product.
inline constexpr const char* vendor_suite_name = "com.orvane";
inline constexpr const char* product_suite_name = "com.orvane.veridialfcpx";

} // namespace ov1
