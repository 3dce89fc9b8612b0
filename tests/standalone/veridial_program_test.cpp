// The program as a user runs it: what it writes, what it says, how it ends.
#include "standalone/program_fixture.h"

#include <array>
#include <chrono>
#include <csignal>
#include <thread>
#include <unistd.h>

namespace ov1
{
namespace
{

TEST_F(veridial_program, mistakes_end_with_one_clear_line_and_their_own_code)
{
    write_picture("in.ppm", 9, 7);
    write_picture("taken.png", 1, 1);
    std::ofstream("text.png") << "this is no picture\n";
    std::ofstream("empty.png");
    std::ofstream("state.bin") << "s1vcXXXX";
    fs::create_directory("closed");
    fs::permissions("closed", fs::perms::owner_read | fs::perms::owner_exec);
    const struct
    {
        const char* line;
        int code;
        const char* said;
    } rows[] = {
        {"$V grade none.png -o o.png", 3, R"("none.png": no such file)"},
        {"$V grade text.png -o o.png", 4, R"("text.png": is not a picture)"},
        {"$V grade empty.png -o o.png", 3, R"("empty.png": the file is empty)"},
        {"$V grade . -o o.png", 2, "several inputs need an output folder"},
        {"$V grade closed -o o/", 3, R"("closed": the folder contains no pictures or clips)"},
        {"$V grade in.ppm --frames 1-2 -o o.png", 2, "shot.%04d.exr"},
        {"$V grade s.%04d.png --frames 2-1 -o o/", 2, R"("--frames": 1 is out of range)"},
        {"$V grade s.%04d.png -o o.%04d.png", 3, R"("s.%04d.png": no such frames)"},
        {"$V grade in.ppm --input-lut text.png -o o.png", 5, "line 1: "},
        {"$V grade in.ppm -s 'Sky Strenght=60' -o o.png", 2, R"((did you mean "Sky Strength"?))"},
        {"$V grade in.ppm -s 'Sky Strength=160' -o o.png", 2, R"("Sky Strength": 160 is out of range (0 to 100))"},
        {"$V grade in.ppm -s 'Sky Strength=60,5' -o o.png", 2, "60.5"},
        {"$V grade in.ppm -s 'Sky Strength=nan' -o o.png", 2, "Sky Strength"},
        {"$V grade in.ppm --wheel shadow=1,2 -o o.png", 2, "shadows"},
        {"$V grade in.ppm --depth 9 -o o.png", 2, "--depth"},
        {"$V grade in.ppm --quality 0 -o o.jpg", 2, "--quality"},
        {"$V grade in.ppm -o o.xyz", 4, R"("o.xyz")"},
        {"$V grade in.ppm --depth half -o o.png", 4, "half"},
        {"$V grade in.ppm -o taken.png", 6, R"("taken.png": already exists (use -f)"},
        {"$V grade in.ppm -o none/o.png", 6, "none"},
        {"$V grade in.ppm --state none.bin -o o.png", 3, "none.bin"},
        {"$V grade in.ppm --state state.bin -o o.png", 5, "state.bin"},
        {"$V grade in.ppm", 2, R"("-o": is missing)"},
        {"$V grade -o o.png", 2, R"("INPUT": is missing)"},
        {"$V lut -o o.txt", 4, ".cube"},
        {"$V lut --size 33 -o o.cube", 2, "--size"},
        {"$V lut --size 17 -o o.3dl", 2, "--size"},
        {"$V grade in.ppm -p Nior -o o.png", 3, R"((did you mean "Noir"?))"},
        {"$V grade in.ppm -p text.png.json -o o.png", 3, "text.png.json"},
        {"$V grade in.ppm -p - -o o.png <text.png", 5, R"("-": )"},
        {"$V preset delete Noir", 6, R"("Noir": is a bundled preset and cannot be deleted)"},
        {"$V preset save a/b", 2, R"("a/b")"},
        {"$V inspire --seed 1.5", 2, R"("--seed": "1.5" is not a whole number)"},
        {"$V scope in.ppm --type wave -o o.png", 2, R"(did you mean "waveform"?)"},
        {"$V scope in.ppm --size 900 -o o.png", 2, R"("--size": "900" is not a size (write WIDTHxHEIGHT)"},
        {"$V scope in.ppm --skin-line -o o.png", 2, R"("--skin-line": is for the vectorscope only)"},
        {"$V inspire -n 3", 2, "-o FOLDER or --save NAME"},
        {"$V grad in.ppm -o o.png", 2, R"(did you mean "grade"?)"},
        {"$V grade in.ppm --tranfer none -o o.png", 2, R"(did you mean "--transfer"?)"},
        {"(ulimit -f 1; exec $V lut -o o.cube)", 6, R"("o.cube")"},
    };
    const auto before = entries();
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const outcome o = run(row.line);
        EXPECT_EQ(o.code, row.code);
        EXPECT_NE(o.err.find(row.said), std::string::npos) << o.err;
        EXPECT_EQ(std::count(o.err.begin(), o.err.end(), '\n'), 1) << o.err;
        EXPECT_EQ(o.err.substr(0, 10), "veridial: ") << o.err;
        EXPECT_EQ(o.out, "");
        EXPECT_EQ(entries(), before) << "nothing is left behind";
    }
}

TEST_F(veridial_program, several_pictures_go_into_a_folder_and_a_bad_one_stops_no_other)
{
    write_picture("a.ppm", 4, 4);
    write_picture("b.ppm", 1, 1);
    std::ofstream("bad.png") << "\x89PNG\r\n\x1a\n and no more";
    const outcome o = run("for i in a b; do $V grade $i.ppm -o $i.png || exit 9; done;"
                          "$V grade a.png bad.png b.png --sky 90,50 -o done/ --json");
    EXPECT_EQ(o.code, 1);
    EXPECT_NE(o.out.find(R"("output":"done/b.png","exit_code":0)"), std::string::npos) << o.out;
    EXPECT_TRUE(fs::exists("done/a.png") && fs::exists("done/b.png") && !fs::exists("done/bad.png"));
}

TEST_F(veridial_program, a_bypassed_picture_comes_back_untouched_and_a_graded_one_does_not)
{
    write_picture("in.ppm", 31, 17);
    const outcome o = run("$V grade in.ppm --depth 16 -o a.png && $V grade a.png --bypass --sky 90,100 -o b.png && "
                          "$V grade b.png --wheel shadows=220,60 -o c.png && cmp a.png b.png && ! cmp -s b.png c.png");
    EXPECT_EQ(o.code, 0) << o.err;
}

TEST_F(veridial_program, outputs_get_the_names_that_were_asked_for)
{
    write_picture("in.ppm", 5, 3);
    ASSERT_EQ(run("$V grade in.ppm -o a.png && mkdir in shots && cp a.png in/x.png && cp a.png in/y.png && "
                  "for i in 1 2 3; do cp a.png s.000$i.png; done")
                  .code,
              0);
    const struct
    {
        const char* line;
        const char* files; ///< that appear
    } rows[] = {
        {"$V grade a.png -o out.tif", "out.tif "},
        {"$V grade in -o out", "out out/x.png out/y.png "},
        {"$V grade a.png in/x.png -o out/", "out out/a.png out/x.png "},
        {"$V grade s.%04d.png -o out.%02d.png", "out.01.png out.02.png out.03.png "},
        {"$V grade s.%04d.png --frames 2-3 -o out/", "out out/s.0002.png out/s.0003.png "},
        {"$V lut -o out.cube && $V lut -o out.3dl && $V lut -o out.png", "out.3dl out.cube out.png "},
        {"$V inspire --seed 7 -n 2 -o shots -f && mv shots/* .", "Look 1.json Look 2.json "},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const outcome o = run("find . | sort >../before.txt; " + std::string(row.line) +
                              " && find . | sort | comm -13 ../before.txt - | sed 's,^\\./,,' | grep -v '^data' | tr "
                              "'\\n' ' '; rm -rf out* Look*");
        EXPECT_EQ(o.err, "");
        EXPECT_EQ(o.out, row.files);
    }
}

TEST_F(veridial_program, json_says_what_became_of_each_input)
{
    write_picture("in.ppm", 5, 3);
    std::ofstream("bad.png") << "no picture";
    ASSERT_EQ(run("$V grade in.ppm -o a.png").code, 0);
    const struct
    {
        const char* line;
        int code;
        const char* said;
    } rows[] = {
        {"$V grade a.png -o b.png --json", 0,
         R"([{"input":"a.png","output":"b.png","exit_code":0,"written":true,"width":5,"height":3,"format":"PNG",)"
         R"("depth":"8","limited_pixels":0,"warnings":[]}])"},
        {"$V grade a.png -o c.tif --depth 16 --json --dry-run", 0,
         R"([{"input":"a.png","output":"c.tif","exit_code":0,"written":false,"width":5,"height":3,"format":"TIFF",)"
         R"("depth":"16","limited_pixels":0,"warnings":[]}])"},
        {"$V grade a.png -o b.png -n --json", 0,
         R"([{"input":"a.png","output":"b.png","exit_code":0,"skipped":true,"warnings":[]}])"},
        {"$V lut -o l.cube --json --dry-run | sed 's/\"bytes\":[0-9]*,//'", 0,
         R"({"output":"l.cube","points":17,"written":false})"},
        {"$V lut -o l.png --json --dry-run | sed 's/\"bytes\":[0-9]*,//'", 0,
         R"({"output":"l.png","points":64,"written":false})"},
        {"$V sheet a.png --sky 90,50 -o s.png --json --dry-run", 0,
         R"({"output":"s.png","written":false,"width":46,"height":51})"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const outcome o = run(row.line);
        EXPECT_EQ(o.code, row.code) << o.err;
        EXPECT_EQ(o.out, row.said + std::string("\n"));
        EXPECT_EQ(o.err, "");
    }
    const outcome failed = run("$V grade bad.png -o d.png --json");
    EXPECT_EQ(failed.code, 4);
    EXPECT_EQ(failed.out.find(R"([{"input":"bad.png","output":"d.png","exit_code":4,"error":")"), 0u) << failed.out;
    EXPECT_FALSE(fs::exists("c.tif") || fs::exists("s.png") || fs::exists("l.cube"));
}

TEST_F(veridial_program, a_preset_can_be_checked_listed_and_read_from_a_file_or_stdin)
{
    std::ofstream("bad.json") << "{";
    const struct
    {
        const char* line;
        int code;
        const char* out;
    } rows[] = {
        {"$V preset save Mine --sky 90,50", 0, ""},
        {"$V preset list | head -1", 0, "Mine\n"},
        {"$V preset list --json | sed 's/,\"bundled.*//'", 0, "{\"own\":[\"Mine\"]\n"},
        {"$V preset load-check Mine", 0, "Mine: loads\n"},
        {"cp data/*/*/*/Mine.json m.json || cp $(find data -name Mine.json) m.json", 0, ""},
        {"$V preset load-check m.json", 0, "m.json: loads\n"},
        {"$V preset show - <m.json", 0, "Sky Angle=90\nSky Strength=50\n"},
        {"$V preset show m.json --json | tr ',' '\\n' | grep Sky", 0, "\"Sky Angle\":90\n\"Sky Strength\":50\n"},
        {"$V preset load-check bad.json", 5, ""},
        {"$V preset load-check none.json", 3, ""},
        {"$V preset show", 2, ""},
        {"$V preset show Mine Noir", 2, ""},
        {"$V preset delete None", 3, ""},
        {"$V preset delete Mine && $V preset list | grep -c Mine", 1, "0\n"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const outcome o = run(row.line);
        EXPECT_EQ(o.code, row.code) << o.err;
        EXPECT_EQ(o.out, row.out);
    }
}

TEST_F(veridial_program, every_command_shows_its_help)
{
    for (const char* command : {"", "grade", "lut", "sheet", "scope", "preset", "preset list", "preset show",
                                "preset save", "preset load-check", "preset delete", "inspire", "params"})
    {
        SCOPED_TRACE(command);
        const outcome o = run("$V " + std::string(command) + " --help");
        EXPECT_EQ(o.code, 0);
        EXPECT_EQ(o.err, "");
        const std::string usage = "\nUsage: veridial " + std::string(command);
        EXPECT_NE(o.out.find(usage), std::string::npos) << o.out;
    }
}

TEST_F(veridial_program, an_editor_without_a_display_is_refused_and_writes_nothing)
{
    write_picture("in.ppm", 5, 3);
    if (run("$V edit --help").code != 0)
        GTEST_SKIP() << "built without the editor";
    const outcome o = run("unset DISPLAY; $V edit in.ppm -o o.png");
    EXPECT_EQ(o.code, 4);
    EXPECT_NE(o.err.find("veridial: \"edit\": cannot open a window"), std::string::npos) << o.err;
    EXPECT_EQ(entries(), std::vector<std::string>{"in.ppm"});
    EXPECT_EQ(run("unset DISPLAY; $V edit in.ppm in.ppm").code, 2);
    EXPECT_EQ(run("unset DISPLAY; $V edit none.png").code, 3);
    EXPECT_EQ(run("unset DISPLAY; $V edit -o o.png").code, 2);
}

TEST_F(veridial_program, dry_runs_say_what_would_be_done_and_write_nothing)
{
    write_picture("in.ppm", 31, 17);
    const outcome o = run("$V grade in.ppm --depth 16 -o out.tif --dry-run");
    EXPECT_EQ(o.code, 0);
    EXPECT_EQ(o.out, "would write out.tif: 31 x 17, TIFF 16\n");
    EXPECT_EQ(run("$V sheet in.ppm -o s.png --dry-run").out, "would write s.png\n");
    EXPECT_EQ(run("$V lut -o x.cube --size 32 --dry-run").out, "would write x.cube, 32 points per axis\n");
    EXPECT_EQ(entries(), std::vector<std::string>{"in.ppm"});
}

TEST_F(veridial_program, presets_are_kept_shown_and_used_and_never_replaced_unasked)
{
    write_picture("in.ppm", 31, 17);
    const outcome o =
        run("$V preset save Mine --wheel shadows=205,38 && ! $V preset save Mine --sky 90,50 2>/dev/null && "
            "$V preset show Mine && $V grade in.ppm -p Mine -o a.png && "
            "$V grade in.ppm --wheel shadows=205,38 -o b.png && cmp a.png b.png && "
            "$V preset save Mine -f --sky 90,50 && $V preset show Mine && $V preset delete Mine && "
            "! $V preset show Mine 2>/dev/null");
    EXPECT_EQ(o.code, 0) << o.err;
    EXPECT_EQ(o.out, "Shadows Hue=205\nShadows Chroma=38\nSky Angle=90\nSky Strength=50\n");
}

TEST_F(veridial_program, a_seed_gives_one_look_and_none_gives_another_each_time)
{
    write_picture("in.ppm", 31, 17);
    const outcome o =
        run("$V inspire --seed 7 >a.json && $V inspire --seed 7 >b.json && cmp a.json b.json && "
            "$V inspire >c.json && $V inspire >d.json && ! cmp -s c.json d.json && "
            "$V inspire -n 2 --seed 6 --save Idea && $V preset show 'Idea 2' >saved.txt && "
            "$V preset show ./a.json | cmp - saved.txt && "
            "$V inspire --seed 7 | $V grade in.ppm -p - -o a.png && $V grade in.ppm -p ./a.json -o b.png && "
            "cmp a.png b.png");
    EXPECT_EQ(o.code, 0) << o.err;
}

TEST_F(veridial_program, a_sheet_shows_looks_presets_or_a_grade)
{
    write_picture("in.ppm", 90, 60);
    const auto size_of = [&](const std::string& arguments)
    {
        run("$V sheet in.ppm " + arguments + " -o sheet.png -f");
        const std::string png = read_text("sheet.png");
        const auto at = [&](std::size_t i)
        { return static_cast<unsigned char>(png[i]) * 256 + static_cast<unsigned char>(png[i + 1]); };
        return png.size() < 24 ? std::pair{0, 0} : std::pair{at(18), at(22)};
    };
    // A cell is 90 x 60 and a caption of 24, with 12 between and around.
    EXPECT_EQ(size_of(""), std::pair(8 * 102 + 12, 6 * 96 + 12));
    EXPECT_EQ(size_of("--sky 90,50"), std::pair(2 * 102 + 12, 96 + 12));
    EXPECT_EQ(size_of("-p Noir -p Autumn -p Pastel -p Moonlight"), std::pair(3 * 102 + 12, 2 * 96 + 12));
}

TEST_F(veridial_program, a_scope_shows_the_picture_after_the_grade_and_bypassed_as_it_came)
{
    write_picture("in.ppm", 31, 17);
    const outcome o =
        run("S=\"$V scope in.ppm --size 320x200 --type\"; for t in waveform parade vectorscope histogram; do "
            "$S $t -o $t.png && $S $t --sky 90,80 --bypass -o same.png -f && cmp $t.png same.png && "
            "$S $t --wheel shadows=220,60 -o other.png -f && ! cmp -s $t.png other.png || exit 9; done; "
            "$S vectorscope --skin-line -o skin.png && ! cmp -s skin.png vectorscope.png && "
            "! cmp -s parade.png waveform.png");
    EXPECT_EQ(o.code, 0) << o.err;
}

TEST_F(veridial_program, numbers_read_and_write_alike_under_a_german_locale)
{
    const outcome o =
        run("LC_ALL=de_DE.UTF-8 $V lut --wheel shadows=220.5,40.25 -o de.cube && "
            "LC_ALL=C $V lut --wheel shadows=220.5,40.25 -o c.cube && sed -i 2d de.cube c.cube && "
            "cmp de.cube c.cube && LC_ALL=de_DE.UTF-8 $V params --json >de.txt && $V params --json | cmp - de.txt");
    EXPECT_EQ(o.code, 0) << o.err;
}

TEST_F(veridial_program, an_interrupt_leaves_nothing_half_done)
{
    write_picture("in.ppm", 3000, 2500);
    run("$V grade in.ppm -o big.png && rm in.ppm && for i in 1 2 3 4 5 6 7 8; do ln big.png in$i.png; done");
    const outcome o = run("$V grade in*.png -o done/ & pid=$!; "
                          "for i in $(seq 600); do [ -e done/in1.png ] && break; sleep 0.05; done; "
                          "kill -TERM $pid; wait $pid"); // shells start background jobs with SIGINT ignored
    EXPECT_EQ(o.code, 130);
    const auto files = []
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator("done"))
            names.push_back(entry.path().filename().string());
        return names;
    }();
    EXPECT_LT(files.size(), 8u);
    for (const std::string& name : files)
        EXPECT_EQ(name.substr(0, 2), "in") << "a temporary file was left";
}

TEST_F(veridial_program, another_programs_trilinear_lookup_of_our_cube_gives_our_picture)
{
    if (std::system("command -v ffmpeg >/dev/null") != 0)
        GTEST_SKIP() << "ffmpeg is not installed";
    std::ofstream raw("in.rgb", std::ios::binary);
    constexpr int width = 96, height = 64;
    std::uint32_t state = 1;
    for (int i = 0; i < width * height * 3 * 2; ++i)
        raw.put(static_cast<char>((state = state * 1664525u + 1013904223u) >> 24));
    raw.close();
    const std::string form = " -f rawvideo -pix_fmt rgb48le ";
    const std::string grade =
        " --wheel shadows=220,55 --wheel highlights=40,30 -s 'Global Chroma=20' -s 'Mids Lightness=2' ";
    const outcome o = run("F='ffmpeg -v error -y'; $F" + form +
                          "-s 96x64 -i in.rgb -pix_fmt rgb48be in.png && "
                          "$V lut" +
                          grade + "-o g.cube && $V grade in.png" + grade +
                          "-o ours.png && "
                          "$F -i in.png -vf lut3d=g.cube:interp=trilinear" +
                          form +
                          "theirs.rgb && "
                          "$F -i ours.png" +
                          form + "ours.rgb");
    ASSERT_EQ(o.code, 0) << o.err;
    const std::string ours = read_text("ours.rgb"), theirs = read_text("theirs.rgb");
    ASSERT_EQ(ours.size(), std::size_t{width * height * 6});
    ASSERT_EQ(ours.size(), theirs.size());
    int largest = 0;
    for (std::size_t i = 0; i < ours.size(); i += 2)
    {
        const auto code = [&](const std::string& s)
        { return static_cast<unsigned char>(s[i]) + 256 * static_cast<unsigned char>(s[i + 1]); };
        largest = std::max(largest, std::abs(code(ours) - code(theirs)));
    }
    // Half a unit of the fourth decimal is 3.3 of 65,535; one more code where either side rounds or truncates.
    EXPECT_LE(largest, 5);
    EXPECT_GT(largest, 0) << "the files differ in their last decimals: equal pictures would mean one was not graded";
}

} // namespace
} // namespace ov1
