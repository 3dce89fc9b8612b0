#include "framework/state_blob.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

const std::vector<state_record> records = {
    {{param_type::continuous, param_cell::of(-0.0f), param_cell::of(50.0f), param_bound::of(-1.5f),
      param_bound::of(1e30f)},
     0x01020304u},
    {{param_type::integral, param_cell::of(std::int32_t{-7}), param_cell::of(std::int32_t{3}), param_bound::of(-10),
      param_bound::of(10)},
     2u},
    {{param_type::boolean, param_cell::of(true), param_cell::of(false), {}, {}}, 3u},
    {{param_type::color, param_cell::of(param_argb{1, 0.25f, 0.5f, 0.75f}), param_cell::of(param_argb{}), {}, {}}, 4u},
};

void put(bytes& blob, std::size_t at, std::uint32_t v)
{
    for (std::size_t i = 0; i < 4; ++i)
        blob.at(at + i) = static_cast<std::uint8_t>(v >> (8 * i));
}

bytes with_count(bytes blob, std::int32_t count)
{
    put(blob, 4, static_cast<std::uint32_t>(count));
    return blob;
}

bytes resized(bytes blob, std::size_t size)
{
    blob.resize(size, 0xEE);
    blob.shrink_to_fit(); // so that a reader who goes too far is caught
    return blob;
}

TEST(state_blob, lies_little_endian_at_its_offsets)
{
    const state_record one = {{param_type::integral, param_cell::of(std::int32_t{0x11223344}),
                               param_cell::of(std::int32_t{5}), param_bound::of(-2), param_bound::of(0x01000000)},
                              0xA1B2C3D4u};
    bytes expected(56);
    const std::pair<std::size_t, bytes> pieces[] = {
        {0, {'s', '1', 'v', 'c', 1}},   {8, {1}},  {12, {0x44, 0x33, 0x22, 0x11}}, {28, {5}},
        {44, {0xFE, 0xFF, 0xFF, 0xFF}}, {51, {1}}, {52, {0xD4, 0xC3, 0xB2, 0xA1}},
    };
    for (const auto& [at, piece] : pieces)
        std::ranges::copy(piece, expected.begin() + static_cast<std::ptrdiff_t>(at));
    EXPECT_EQ(write_state({&one, 1}), expected);
    std::vector<state_record> read;
    ASSERT_TRUE(read_state(expected, read));
    EXPECT_EQ(write_state(read), expected);
}

TEST(state_blob, reads_what_fits_and_checks_what_is_missing)
{
    const bytes whole = write_state(records);
    bytes foreign = whole;
    foreign[3] = 'd';
    const struct
    {
        const char* name;
        bytes blob;
        bool is_state;
        std::size_t count;
        const char* reason;
    } rows[] = {
        {"whole", whole, true, 4, ""},
        {"more bytes after the last", resized(whole, whole.size() + 16), true, 4, ""},
        {"fewer announced", with_count(whole, 2), true, 2, ""},
        {"9 bytes, none announced", with_count(resized(whole, 9), 0), true, 0, ""},
        {"last byte missing", resized(whole, whole.size() - 1), true, 3,
         "the state is cut short: it announces 4 parameters and holds 3"},
        {"one more announced", with_count(whole, 5), true, 4,
         "the state is cut short: it announces 5 parameters and holds 4"},
        {"the most announced", with_count(whole, 0x7FFFFFFF), true, 4,
         "the state is cut short: it announces 2147483647 parameters and holds 4"},
        {"a negative count", with_count(whole, -1), true, 0, "the state is damaged: it announces -1 parameters"},
        {"a header alone", with_count(resized(whole, 8), 0), false, 0, "the state is cut short: 8 bytes"},
        {"no bytes", {}, false, 0, "the state is cut short: 0 bytes"},
        {"other bytes", foreign, false, 0, "not a state: it does not begin with \"s1vc\""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        std::vector<state_record> read;
        EXPECT_EQ(read_state(row.blob, read), row.is_state);
        EXPECT_EQ(read.size(), row.count);
        std::string reason;
        EXPECT_EQ(check_state_blob(row.blob, reason), *row.reason == '\0');
        EXPECT_EQ(reason, row.reason);
    }
}

TEST(state_blob, cleans_cells_of_known_kinds_and_keeps_others)
{
    const struct
    {
        std::uint32_t type;
        std::size_t kept; ///< bytes of the cell that come through
        std::uint8_t first;
    } rows[] = {{0, 4, 0xEE}, {1, 4, 0xEE}, {2, 1, 1}, {3, 16, 0xEE}, {4, 16, 0xEE}, {0xFFFFFFFFu, 16, 0xEE}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.type);
        bytes blob = with_count(resized({'s', '1', 'v', 'c'}, 56), 1);
        put(blob, 8, row.type);
        std::vector<state_record> read;
        ASSERT_TRUE(read_state(blob, read));
        ASSERT_EQ(read.size(), 1u);
        param_cell expected;
        std::fill_n(expected.bytes.begin(), row.kept, std::uint8_t{0xEE});
        expected.bytes[0] = row.first;
        EXPECT_EQ(read[0].value.value, expected);
        EXPECT_EQ(read[0].value.default_value, expected);
        EXPECT_EQ(static_cast<std::uint32_t>(read[0].value.type), row.type);
    }
}

TEST(state_blob, survives_any_bytes)
{
    std::mt19937 random(4711);
    const bytes whole = write_state(records);
    for (int i = 0; i < 100000; ++i)
    {
        bytes blob = resized(whole, random() % (whole.size() + 60));
        for (unsigned n = random() % 4; n > 0 && !blob.empty(); --n)
            blob[random() % blob.size()] = static_cast<std::uint8_t>(random());
        if (random() % 4 == 0 && blob.size() >= 8)
            blob = with_count(blob, static_cast<std::int32_t>(random()));
        if (random() % 8 == 0)
            std::ranges::generate(blob, [&] { return static_cast<std::uint8_t>(random()); });
        std::vector<state_record> read;
        const bool is_state = read_state(blob, read);
        ASSERT_LE(read.size() * state_record_size + (is_state ? state_header_size : 0), blob.size());
        std::string reason;
        if (check_state_blob(blob, reason))
            ASSERT_TRUE(is_state && blob[4] == read.size() && blob[5] == 0) << "checked, so all announced is there";
        else
            ASSERT_FALSE(reason.empty());
    }
}

} // namespace
} // namespace ov1
