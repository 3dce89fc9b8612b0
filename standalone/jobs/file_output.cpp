#include "standalone/jobs/file_output.h"

#include "platform/atomic_file.h"

namespace ov1
{

bool write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace, problem& why)
{
    why = {exit_code::cannot_write, path, {}, {}};
    const auto written = may_replace ? replace_file(path, bytes) : create_file(path, bytes);
    if (!written)
        why.reason = written.error().reason;
    return static_cast<bool>(written);
}

} // namespace ov1
