#include "framework/state_blob.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

bytes with(bytes blob, std::size_t at, std::uint32_t v)
{
    for (std::size_t i = 0; i < 4; ++i)
        blob.at(at + i) = static_cast<std::uint8_t>(v >> (8 * i));
    return blob;
}

bytes resized(bytes blob, std::size_t size)
{
    blob.resize(size, 0xEE);
    blob.shrink_to_fit(); // so that reading past the end is detected
    return blob;
}

bytes one_of_each_kind()
{
    std::vector<state_record> records(4);
    for (std::uint32_t i = 0; i < 4; ++i)
        records[i] = {{param_type{i}, param_cell::of(1.5f), {}, {}, {}}, i};
    return write_state(records);
}

TEST(state_blob, is_little_endian_at_the_documented_offsets)
{
    const state_record one = {{param_type::integral, param_cell::of(0x11223344), param_cell::of(5), param_bound::of(-2),
                               param_bound::of(0x01000000)},
                              0xA1B2C3D4u};
    bytes expected = {'s', '1', 'v', 'c', 1};
    expected.resize(56);
    for (const auto& [at, v] : {std::pair(8u, 1u), {12, 0x11223344}, {28, 5}, {44, ~1u}, {48, 1 << 24}, {52, one.id}})
        expected = with(expected, at, v);
    EXPECT_EQ(write_state({&one, 1}), expected);
    std::vector<state_record> read;
    ASSERT_TRUE(read_state(expected, read));
    EXPECT_EQ(write_state(read), expected);
}

TEST(state_blob, reads_complete_records_and_reports_missing_ones)
{
    const bytes whole = one_of_each_kind();
    const std::string cut = "the state is cut short: ";
    const std::tuple<const char*, bytes, bool, std::size_t, std::string> rows[] = {
        {"whole", whole, true, 4, ""},
        {"more bytes after the last", resized(whole, whole.size() + 16), true, 4, ""},
        {"fewer announced", with(whole, 4, 2), true, 2, ""},
        {"9 bytes, none announced", with(resized(whole, 9), 4, 0), true, 0, ""},
        {"last byte missing", resized(whole, 199), true, 3, cut + "it announces 4 parameters and holds 3"},
        {"one more announced", with(whole, 4, 5), true, 4, cut + "it announces 5 parameters and holds 4"},
        {"the most announced", with(whole, 4, 0x7FFFFFFF), true, 4,
         cut + "it announces 2147483647 parameters and holds 4"},
        {"a negative count", with(whole, 4, ~0u), true, 0, "the state is damaged: it announces -1 parameters"},
        {"a header alone", with(resized(whole, 8), 4, 0), false, 0, cut + "8 bytes"},
        {"no bytes", {}, false, 0, cut + "0 bytes"},
        {"other bytes", with(whole, 0, 0x64763173), false, 0, "not a state: it does not begin with \"s1vc\""},
    };
    for (const auto& [name, blob, is_state, count, expected_reason] : rows)
    {
        SCOPED_TRACE(name);
        std::vector<state_record> read;
        EXPECT_EQ(read_state(blob, read), is_state);
        EXPECT_EQ(read.size(), count);
        const auto checked = check_state_blob(blob);
        const failure invalid{failure_kind::invalid_grade, {}, expected_reason};
        EXPECT_EQ(checked ? failure{failure_kind::invalid_grade} : checked.error(), invalid);
    }
}

TEST(state_blob, cleans_cells_of_known_kinds_and_keeps_others)
{
    // kind, the number of bytes kept, the first byte
    const std::tuple<std::uint32_t, int, std::uint8_t> rows[] = {{0, 4, 0xEE},  {1, 4, 0xEE},  {2, 1, 1},
                                                                 {3, 16, 0xEE}, {4, 16, 0xEE}, {~0u, 16, 0xEE}};
    for (const auto& [kind, kept, first] : rows)
    {
        SCOPED_TRACE(kind);
        std::vector<state_record> read;
        ASSERT_TRUE(read_state(with(with(resized({'s', '1', 'v', 'c'}, 56), 4, 1), 8, kind), read));
        param_cell expected;
        std::fill_n(expected.bytes.begin(), kept, std::uint8_t{0xEE});
        expected.bytes[0] = first;
        EXPECT_EQ(read.at(0).value.value, expected);
        EXPECT_EQ(read[0].value.default_value, expected);
        EXPECT_EQ(read[0].value.type, param_type{kind});
    }
}

TEST(state_blob, survives_any_bytes)
{
    std::mt19937 random(4711);
    const bytes whole = one_of_each_kind();
    for (int i = 0; i < 100000; ++i)
    {
        bytes blob = resized(whole, random() % (whole.size() + 60));
        for (unsigned n = random() % 4; n > 0 && !blob.empty(); --n)
            blob[random() % blob.size()] = static_cast<std::uint8_t>(random());
        if (random() % 4 == 0 && blob.size() >= 8)
            blob = with(blob, 4, static_cast<std::uint32_t>(random()));
        if (random() % 8 == 0)
            std::ranges::generate(blob, [&] { return static_cast<std::uint8_t>(random()); });
        std::vector<state_record> read;
        const bool is_state = read_state(blob, read);
        ASSERT_LE(read.size() * state_record_size + (is_state ? state_header_size : 0), blob.size());
        ASSERT_TRUE(!check_state_blob(blob) || (is_state && blob[4] == read.size() && blob[5] == 0))
            << "all announced records are complete";
    }
}

} // namespace
} // namespace ov1
