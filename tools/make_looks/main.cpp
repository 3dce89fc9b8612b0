// make_looks: computes the product's look tables and skin data when the project is built, and reports their measures.
#include "effect/lut/bin_lut.h"
#include "tools/looks/look_data.h"
#include "tools/looks/measures.h"
#include "tools/looks/report.h"
#include "tools/looks/skin_source.h"

#include <algorithm>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <span>
#include <string_view>

namespace
{

using namespace ov1;

constexpr std::string_view usage = "usage: make_looks --write FOLDER SOURCE.cpp   the eighteen tables, the skin data\n"
                                   "       make_looks --report                    the measures of the data\n";

enum exit_code : int
{
    done = 0,
    measures_missed = 1,
    bad_usage = 2,
    cannot_write = 6,
};

bool write_file(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    // Before the check: a full disk may be noticed only when the last bytes are written.
    file.close();
    if (file)
        return true;
    fmt::print(stderr, "make_looks: {}: cannot be written\n", path.string());
    return false;
}

/// The build runs this. It stops at the first file that cannot be written.
int write_all(const std::filesystem::path& folder, const std::filesystem::path& source)
{
    const look_data data = compute_looks();
    for (const look_row& row : std::span(look_rows).first(resource_count))
    {
        const auto bytes = write_bin_lut(data[row.id].get_entries(), lut_edge);
        const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        if (!write_file(folder / fmt::format("{}.bin", row.name), text))
            return cannot_write;
    }
    return write_file(source, skin_source(data)) ? done : cannot_write;
}

int report()
{
    const auto rows = measure(compute_looks());
    fmt::print("{}", report_text(rows));
    return std::ranges::all_of(rows, &measured::met) ? done : measures_missed;
}

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() == 4 && std::string_view(arguments[1]) == "--write")
        return write_all(arguments[2], arguments[3]);
    if (arguments.size() == 2 && std::string_view(arguments[1]) == "--report")
        return report();
    fmt::print(stderr, "{}", usage);
    return bad_usage;
}
