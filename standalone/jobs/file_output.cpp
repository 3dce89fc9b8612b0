#include "standalone/jobs/file_output.h"

#include "platform/atomic_file.h"

namespace ov1
{

result<> write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace)
{
    auto written = may_replace ? replace_file(path, bytes) : create_file(path, bytes);
    if (!written)
        return about(path, written.error());
    return {};
}

} // namespace ov1
