#include "effect/lut/cube_reader.h"

#include "effect/lut/trilinear.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

// A carriage return is a blank, so lines may end in CR LF.
constexpr std::string_view blanks = " \t\r\v\f";

/// Removes the next word from a line and returns it; empty at the end.
std::string_view take_word(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(blanks));
    line.remove_prefix(word.size());
    return word;
}

/// Removes the next line from a text and returns it without its line feed; the last line may have none.
std::string_view take_line(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return line;
}

/// Whether the whole word is a number. A plus sign is allowed, which from_chars does not accept.
template <typename number>
bool read_whole(std::string_view word, number& value)
{
    if (word.starts_with('+'))
        word.remove_prefix(1);
    const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), value);
    return failure == std::errc() && end == word.data() + word.size();
}

/// from_chars reads "inf" and "nan" too; a table may hold neither.
bool read_number(std::string_view word, float& value) { return read_whole(word, value) && std::isfinite(value); }

} // namespace

/// Reads one text, line by line, until the first failure.
class cube_parser
{
public:
    result<cube_table> parse(std::string_view text)
    {
        constexpr std::size_t least_line = 6; // "0 0 0\n"
        most_entries = text.size() / least_line + 1;
        if (text.starts_with("\xEF\xBB\xBF")) // a byte order mark
            text.remove_prefix(3);
        while (!text.empty() && reason.empty())
        {
            ++line_number;
            take(take_line(text));
        }
        if (reason.empty() && made.size == 0)
            reason = "no LUT_1D_SIZE or LUT_3D_SIZE in it";
        else if (reason.empty() && made.entries.size() < wanted())
            reason =
                "ends after " + std::to_string(made.entries.size()) + " of " + std::to_string(wanted()) + " entries";
        if (!reason.empty())
            return failure{failure_kind::invalid_grade, {}, reason};
        return std::move(made);
    }

private:
    /// A comment, a keyword or an entry. An unknown keyword is refused: skipping it could change the colours.
    void take(std::string_view line)
    {
        std::string_view rest = line;
        const std::string_view word = take_word(rest);
        if (word.empty() || word.starts_with('#'))
            return;
        if (word == "TITLE")
            take_title(rest);
        else if (word == "LUT_1D_SIZE" || word == "LUT_3D_SIZE")
            take_size(rest, word == "LUT_3D_SIZE");
        else if (word == "DOMAIN_MIN")
            take_three(rest, made.domain_min);
        else if (word == "DOMAIN_MAX")
            take_three(rest, made.domain_max);
        else if (word == "LUT_1D_INPUT_RANGE" || word == "LUT_3D_INPUT_RANGE")
            take_range(rest);
        else
            take_entry(line);
        check_domain();
    }

    void refuse(const std::string& text) { reason = "line " + std::to_string(line_number) + ": " + text; }

    /// The entries that the size asks for, 256^3 at most.
    std::size_t wanted() const { return made.three_dimensional ? made.size * made.size * made.size : made.size; }

    /// From the first quote to the last, because titles can hold quotes. A title without quotes is ignored.
    void take_title(std::string_view rest)
    {
        const std::size_t open = rest.find('"'), close = rest.rfind('"');
        if (open != std::string_view::npos && close > open)
            made.title = rest.substr(open + 1, close - open - 1);
    }

    void take_size(std::string_view rest, bool is_3d)
    {
        const std::size_t largest = is_3d ? cube_table::largest_3d : cube_table::largest_1d;
        std::size_t size = 0;
        if (made.size != 0)
            refuse("a second size");
        else if (!read_whole(take_word(rest), size) || size < 2 || size > largest || !take_word(rest).empty())
            refuse("a size is a whole number from 2 to " + std::to_string(largest));
        else
        {
            made.size = size;
            made.three_dimensional = is_3d;
            made.entries.reserve(std::min(wanted(), most_entries)); // the size can be wrong
        }
    }

    void take_three(std::string_view rest, std::array<float, 3>& values)
    {
        for (float& value : values)
            if (!read_number(take_word(rest), value))
                return refuse("three numbers are needed");
        if (!take_word(rest).empty())
            refuse("three numbers are needed");
    }

    void take_range(std::string_view rest)
    {
        float least = 0, most = 1;
        if (!read_number(take_word(rest), least) || !read_number(take_word(rest), most))
            return refuse("two numbers are needed");
        made.domain_min.fill(least);
        made.domain_max.fill(most);
    }

    void take_entry(std::string_view line)
    {
        std::array<float, 3> entry{};
        // No number begins with a letter.
        const char first = line[line.find_first_not_of(blanks)];
        if ((first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z'))
            return refuse("no such keyword");
        if (made.size == 0)
            return refuse("an entry before the size");
        if (made.entries.size() == wanted())
            return refuse("more than " + std::to_string(wanted()) + " entries");
        take_three(line, entry);
        made.entries.push_back({1.0f, entry[0], entry[1], entry[2]});
    }

    /// Minimum and maximum can come in any order, so they are compared at the first entry.
    void check_domain()
    {
        for (std::size_t i = 0; i < 3 && made.entries.size() == 1 && reason.empty(); ++i)
            if (!(made.domain_min[i] < made.domain_max[i]))
                refuse("the domain above it is empty");
    }

    cube_table made;
    std::size_t line_number = 0;
    std::size_t most_entries = 0; ///< that a text of this length can hold
    std::string reason;           ///< of the first failure
};

result<cube_table> cube_table::read(std::string_view text) { return cube_parser().parse(text); }

namespace
{

/// From the domain to grid steps; grid_position_at limits the result.
grid_position position_of(float value, float least, float most, std::size_t size)
{
    return grid_position_at((value - least) / (most - least) * static_cast<float>(size - 1), size);
}

} // namespace

argb_float cube_table::lookup(const argb_float& c) const
{
    const grid_position r = position_of(c.r, domain_min[0], domain_max[0], size);
    const grid_position g = position_of(c.g, domain_min[1], domain_max[1], size);
    const grid_position b = position_of(c.b, domain_min[2], domain_max[2], size);
    const argb_float* const e = entries.data();
    // In 1D each channel has a curve of its own.
    if (!three_dimensional)
        return {c.a, lerp(e[r.lower].r, e[r.upper].r, r.fraction), lerp(e[g.lower].g, e[g.upper].g, g.fraction),
                lerp(e[b.lower].b, e[b.upper].b, b.fraction)};
    argb_float result =
        trilinear(r, g, b, [&](std::size_t red, std::size_t green, std::size_t blue) -> const argb_float&
                  { return e[(blue * size + green) * size + red]; });
    result.a = c.a;
    return result;
}

void cube_table::apply(const rgb_planes<float>& row, std::size_t count) const
{
    for (std::size_t i = 0; i < count; ++i)
    {
        const argb_float c = lookup({1.0f, row.r[i], row.g[i], row.b[i]});
        row.r[i] = c.r;
        row.g[i] = c.g;
        row.b[i] = c.b;
    }
}

} // namespace ov1
