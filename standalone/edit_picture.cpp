#include "standalone/edit_picture.h"

#include "media/still_reader.h"
#include "standalone/media_problem.h"
#include "standalone/preview_picture.h"

#include <utility>

namespace ov1
{

edit_picture::edit_picture() { show(make_test_chart()); }

void edit_picture::show(std::shared_ptr<image> picture)
{
    destination = make_image_like(*picture);
    source = std::move(picture);
}

bool edit_picture::open(const std::string& path, problem& why)
{
    media::still_reader reader;
    media::error failure;
    if (!reader.open(path, failure))
    {
        why = problem_of(failure, path);
        return false;
    }
    show(make_preview_image(reader));
    return true;
}

bool edit_picture::read_frame(int frame, problem&) { return frame == 0; }

} // namespace ov1
