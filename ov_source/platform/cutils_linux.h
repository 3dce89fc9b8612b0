// The utilities on Linux and other free desktops.
#pragma once

#include "platform/iutils.h"
#include "platform/settings_store.h"
#include "platform/user_environment.h"

namespace ov1
{

/// Settings are two files in the environment's settings folder, VENDOR.settings and PRODUCT.settings; with an empty
/// name the settings of that kind can be neither read nor written. Alerts, screen sizes and dpi come from the installed
/// desktop_services.
class cutils_linux : public iutils
{
public:
    cutils_linux(const std::string& vendor_name, const std::string& product_name, user_environment environment);

    /// Getters read the file at each call, setters replace it.
    bool set_bytes(const std::string& key, std::span<const std::uint8_t> bytes) override;
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
    bool get_vendor_uint32(const std::string& key, std::uint32_t& value) override;
    /// The kernel's name.
    std::string get_os_name_string() override;
    /// The kernel's version.
    bool get_os_version_string(std::string& text) override;
    /// PRETTY_NAME of os-release, or else the kernel's name, and the word size.
    bool get_os_string(std::string& text) override;
    /// Without a desktop the text is written to stderr, and the answer is false.
    bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                   const std::string& button) override;
    bool alert_box(void* parent_window, const std::string& title, const std::string& message,
                   const std::string& first_button, const std::string& second_button) override;
    bool get_resource(const std::string& name, std::vector<std::uint8_t>& bytes) override;
    /// Starts xdg-open.
    void open_url(const std::string& text) override;
    /// Whether this is the first thread of the process.
    bool is_main_thread() override;
    /// The user's umask applies.
    bool create_dir(const std::string& path) override;
    const std::string& get_path_separator() override;
    /// 1920 x 1080 where no desktop reports a size.
    void get_screen_dimensions(void* window, int& width, int& height) override;
    std::string get_common_directory() override;
    bool list_dir(const std::string& path, std::vector<std::string>* files, std::vector<std::string>* directories,
                  bool full_paths) override;
    /// The user's $VERIDIAL_SCALE, or else 1 or 2.
    double get_dpi_scale() override;
    std::string get_resource_directory() override;

private:
    user_environment environment;
    settings_store vendor_settings;
    settings_store product_settings;
};

} // namespace ov1
