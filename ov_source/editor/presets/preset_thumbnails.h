// Makes a small picture through every preset in the background.
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

/// Works on its own thread with its own component; the user's grade is not touched. The destructor stops the work and
/// waits for the preset in progress. All functions belong to the editor's thread.
class preset_thumbnails
{
public:
    /// files: the path of each preset. picture: the ungraded frame at the thumbnails' size; it may be empty.
    preset_thumbnails(std::vector<std::string> files, display_picture picture);

    /// The thumbnails made since the last call, by their index in files.
    std::map<std::size_t, preset_thumbnail> take();

private:
    /// Runs on the worker's thread, in the order of files, until all are made or a stop is requested.
    void work(std::stop_token stop);

    // Never changed after the constructor: the worker reads both without a lock.
    const std::vector<std::string> files;
    const display_picture picture;
    /// Guards done. Held only to hand results over.
    std::mutex done_mutex;
    std::map<std::size_t, preset_thumbnail> done;
    std::jthread worker; ///< last: it uses all of the above
};

} // namespace ov1
