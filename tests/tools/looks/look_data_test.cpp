// The generated data, as the product loads them, meet the fifteen measures, and each measure detects damage.
#include "tools/looks/look_data.h"

#include "effect/lut/bin_lut.h"
#include "effect/skin_data.h"
#include "tools/looks/look_groups.h"
#include "tools/looks/measures.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

namespace ov1
{
namespace
{

std::vector<unsigned char> file_bytes(const std::string& name)
{
    std::ifstream file(std::string(VERIDIAL_SHARE_DIR) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

mask_weights weights_of(const lut_mask<lut_edge>& mask) { return {mask.weights.begin(), mask.weights.end()}; }

look_data loaded()
{
    look_data data;
    for (const look_row& row : std::span(look_rows).first(resource_count))
    {
        auto entries = read_bin_lut(file_bytes(std::string(row.name) + ".bin"), lut_edge);
        EXPECT_TRUE(entries) << row.name;
        if (entries)
            data[row.id].get_entries() = std::move(*entries);
    }
    data[look_id::skin_lighter] = look_table::from_std_array(skintone_lut_haut_heller_data);
    data[look_id::skin_darker] = look_table::from_std_array(skintone_lut_haut_dunkler_data);
    data[look_id::skin_yellowish] = look_table::from_std_array(skintone_lut_gelbsucht_data);
    data[look_id::skin_reddened] = look_table::from_std_array(skintone_lut_sonnenbrand_data);
    data.select_skintones = weights_of(lut_masks::select_skintones);
    data.select_skintones_extreme = weights_of(lut_masks::select_skintones_extreme);
    return data;
}

TEST(look_data, meet_all_fifteen_measures)
{
    std::set<int> numbers;
    for (const measured& row : measure(loaded()))
    {
        EXPECT_TRUE(row.met()) << row.number << " " << row.what << ": " << row.value << ", allowed " << row.least
                               << " to " << row.most;
        numbers.insert(row.number);
    }
    EXPECT_EQ(numbers.size(), 15u);
}

TEST(look_data, are_the_same_to_the_bit_wherever_they_are_computed)
{
    // The tables were written by make_looks in the build; these are computed here, with the test's own libraries.
    const look_data computed = compute_looks(), read = loaded();
    EXPECT_EQ(computed.tables, read.tables);
    EXPECT_EQ(computed.select_skintones, read.select_skintones);
    EXPECT_EQ(computed.select_skintones_extreme, read.select_skintones_extreme);
    for (std::size_t i = 0; i < look_count; ++i)
        EXPECT_EQ(look_rows[i].id, look_id{i}) << look_rows[i].name;
}

argb_float& entry(look_data& data, look_id id, std::size_t r, std::size_t g, std::size_t b)
{
    return data[id].get_entries()[look_table::index(r, g, b)];
}

struct damage_row
{
    int number; ///< of a measure that must be missed
    const char* what;
    std::vector<measured> (*group)(const look_data&);
    void (*damage)(look_data&);
};

const damage_row damages[] = {
    {1, "a grey off by a thousandth", measure_greys,
     [](look_data& d) { entry(d, look_id::sky_100, 8, 8, 8).r += 1e-3f; }},
    {1, "a near-grey off by the least", measure_greys,
     [](look_data& d) { entry(d, look_id::skin_darker, 9, 8, 9).b += 1e-6f; }},
    {2, "greys tinted", measure_greys, [](look_data& d) { entry(d, look_id::mids_100, 8, 8, 8).g += 0.01f; }},
    {2, "greys tinted by less", measure_greys,
     [](look_data& d) { entry(d, look_id::mids_minus100, 8, 8, 8).g += 0.02f; }},
    {3, "film tints", measure_greys, [](look_data& d) { entry(d, look_id::film_100, 5, 5, 5).b += 0.001f; }},
    {3, "film posterises", measure_greys,
     [](look_data& d) { entry(d, look_id::film_north, 8, 8, 8) = entry(d, look_id::film_north, 9, 9, 9); }},
    {4, "white not quite white", measure_greys,
     [](look_data& d) { entry(d, look_id::highlights_100, 16, 16, 16).g = 0.9999f; }},
    {4, "an entry above 1", measure_greys, [](look_data& d) { entry(d, look_id::sky_purple, 0, 3, 16).b = 1.001f; }},
    {5, "a dead pad", measure_targets, [](look_data& d) { d[look_id::greenery_bright] = look_table(); }},
    {6, "opposites exchanged", measure_targets,
     [](look_data& d) { std::swap(d[look_id::sky_100], d[look_id::sky_minus100]); }},
    {7, "orange hit by the sky", measure_targets, [](look_data& d) { entry(d, look_id::sky_100, 14, 8, 3).g = 0.45f; }},
    {8, "two directions alike", measure_targets,
     [](look_data& d) { d[look_id::skin_reddened] = d[look_id::skin_yellowish]; }},
    {9, "the S-curve not the sum", measure_lattice,
     [](look_data& d) { entry(d, look_id::film_100, 3, 7, 9).r += 1e-5f; }},
    {10, "two neighbours exchanged", measure_lattice, [](look_data& d)
     { std::swap(entry(d, look_id::greenery_irish, 3, 9, 4), entry(d, look_id::greenery_irish, 3, 10, 4)); }},
    {11, "a jump", measure_lattice, [](look_data& d) { entry(d, look_id::sky_turquoise, 4, 8, 11).r += 0.3f; }},
    {12, "a step in the gradients of skin", measure_pictures,
     [](look_data& d)
     {
         for (const auto& [g, b] : {std::pair{8, 7}, {9, 7}, {8, 8}, {9, 8}})
             entry(d, look_id::skin_lighter, 12, g, b) = {1, 0.5f, 0.4f, 0.3f};
     }},
    {13, "hue turned with contrast", measure_pictures,
     [](look_data& d)
     {
         for (argb_float& e : d[look_id::film_100].get_entries())
             e.g = std::min(e.g + 0.03f, 1.0f);
     }},
    {14, "a zone left coloured", measure_pictures, [](look_data& d) { d[look_id::mids_minus100] = look_table(); }},
    {14, "a zone left pale", measure_pictures, [](look_data& d) { d[look_id::mids_100] = look_table(); }},
    {15, "everything is skin", measure_pictures, [](look_data& d) { std::ranges::fill(d.select_skintones, 1.0f); }},
    {15, "the rejecting mask stored as a selecting one", measure_pictures,
     [](look_data& d)
     {
         for (float& w : d.select_skintones_extreme)
             w = 1.0f - w;
     }},
};

TEST(look_measures, each_detects_damage)
{
    const look_data good = compute_looks();
    for (const damage_row& row : damages)
    {
        SCOPED_TRACE(row.what);
        look_data data = good;
        row.damage(data);
        const auto rows = row.group(data);
        EXPECT_TRUE(std::ranges::any_of(rows, [&](const measured& m) { return m.number == row.number && !m.met(); }));
    }
}

} // namespace
} // namespace ov1
