#include "command_line/frame_pattern.h"

#include "command_line/number.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

namespace ov1
{

namespace
{

namespace fs = std::filesystem;

// Well within an int, so that counting on cannot overflow.
constexpr int largest_frame = 99'999'999;
// Any number of this many digits fits an int.
constexpr std::size_t most_digits = 9;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// The frame number in a file name; empty where the pattern does not produce this name.
std::optional<int> frame_in(std::string_view leaf, std::string_view before, std::string_view after, std::size_t digits)
{
    if (leaf.size() < before.size() + after.size() + digits || !leaf.starts_with(before) || !leaf.ends_with(after))
        return {};
    const std::string_view number = leaf.substr(before.size(), leaf.size() - before.size() - after.size());
    // "0123" cannot come from %03d: 123 would have been written without the zero.
    const bool is_padded_beyond = number.size() > digits && number.front() == '0';
    if (number.size() > most_digits || is_padded_beyond || !std::all_of(number.begin(), number.end(), is_digit))
        return {};
    int frame = 0;
    std::from_chars(number.data(), number.data() + number.size(), frame);
    return frame;
}

} // namespace

std::string frame_pattern::name_of(int frame) const
{
    const std::string number = std::to_string(frame);
    return before + std::string(digits - std::min(digits, number.size()), '0') + number + after;
}

std::optional<frame_pattern> find_frame_pattern(std::string_view path)
{
    // Only the file name may hold the number: a folder of numbered names is no sequence.
    const std::size_t percent = path.rfind('%');
    if (percent == std::string_view::npos || path.find('/', percent) != std::string_view::npos)
        return {};
    std::size_t end = percent + 1;
    while (end < path.size() && is_digit(path[end]))
        ++end;
    // As for printf: "%d", or a zero and one digit. "%4d" would pad with blanks and is not taken.
    const std::string_view width = path.substr(percent + 1, end - percent - 1);
    const std::size_t leaf = path.rfind('/') + 1;
    if (end == path.size() || path[end] != 'd' || width.size() > 2 || path.find('%', leaf) != percent ||
        (!width.empty() && width[0] != '0'))
        return {};
    frame_pattern pattern{std::string(path.substr(0, percent)), std::string(path.substr(end + 1)), 1};
    if (width.size() == 2)
        pattern.digits = std::max<std::size_t>(1, static_cast<std::size_t>(width[1] - '0'));
    return pattern;
}

std::vector<int> existing_frames(const frame_pattern& pattern)
{
    const fs::path start = pattern.before;
    const fs::path folder = start.parent_path().empty() ? fs::path(".") : start.parent_path();
    std::vector<int> frames;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error))
        if (const auto frame =
                frame_in(entry.path().filename().string(), start.filename().string(), pattern.after, pattern.digits))
            frames.push_back(*frame);
    std::sort(frames.begin(), frames.end());
    return frames;
}

result<frame_range> read_frame_range(std::string_view text)
{
    const std::string_view all = trimmed(text);
    const std::size_t dash = all.find('-');
    const auto first = read_whole_number_within(all.substr(0, dash), 0, largest_frame);
    if (!first)
        return first.error();
    if (dash == std::string_view::npos)
        return frame_range{*first, *first};
    const auto last = read_whole_number_within(all.substr(dash + 1), *first, largest_frame);
    if (!last)
        return last.error();
    return frame_range{*first, *last};
}

} // namespace ov1
