// A small picture through every preset, made in the background.
#pragma once

#include "editor/preview/display_picture.h"
#include "framework/row_renderer.h"

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace ov1
{

struct preset_thumbnail
{
    display_picture picture;                      ///< empty where the preset cannot be read
    std::shared_ptr<const row_renderer> renderer; ///< the preset's grade; null where it cannot be read
};

/// Works on a thread of its own with a component of its own; the user's grade is not touched. Destroying it stops the
/// work. The rest belongs to the editor's thread.
class preset_thumbnails
{
public:
    /// files holds a preset's file for each thumbnail; picture is the frame before the grade, about as large as the
    /// thumbnails are.
    preset_thumbnails(std::vector<std::string> files, display_picture picture);

    /// Those that are done and were not taken yet, by their place in files.
    std::map<std::size_t, preset_thumbnail> take();

private:
    void work(std::stop_token stop);

    const std::vector<std::string> files;
    const display_picture picture;
    std::mutex done_mutex;
    std::map<std::size_t, preset_thumbnail> done;
    std::jthread worker; ///< last: it uses all of the above
};

} // namespace ov1
