#include "command_line/file_output.h"

#include "platform/atomic_file.h"

namespace ov1
{

result<> write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace)
{
    // write_file leaves the subject empty: it does not know how the user named the file.
    if (const auto written = write_file(path, bytes, may_replace); !written)
        return about(path, written.error());
    return {};
}

} // namespace ov1
