// Clips through the program: what comes back of them, held against what ffprobe and ffmpeg see.
#include "standalone/program_fixture.h"

#include <cstdint>

namespace ov1
{
namespace
{

class clip_program : public veridial_program
{
protected:
    void SetUp() override
    {
        veridial_program::SetUp();
        if (std::system("command -v ffmpeg ffprobe >/dev/null") != 0)
            GTEST_SKIP() << "ffmpeg is not installed";
        std::ofstream("facts.txt") << ";FFMETADATA1\ntitle=A clip\nartist=Someone\ncomment=for a test\n"
                                      "creation_time=2024-05-06T07:08:09.000000Z\n"
                                      "[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=400\ntitle=One\n"
                                      "[CHAPTER]\nTIMEBASE=1/1000\nSTART=400\nEND=1000\ntitle=Two\n";
        std::ofstream("words.srt") << "1\n00:00:00,100 --> 00:00:00,400\nHello\n\n"
                                      "2\n00:00:00,500 --> 00:00:00,900\nWorld\n";
    }

    /// A shell line that has to succeed; F is ffmpeg, P ffprobe, SRC a moving chart and TWO a chart with sound.
    std::string done(const std::string& line) const
    {
        const outcome o = run("F='ffmpeg -nostdin -v error -y'; P='ffprobe -v error'; "
                              "SRC='-f lavfi -i testsrc2=s=160x90:r=25:d=1'; "
                              "TWO=\"$SRC -f lavfi -i sine=440:d=1\"; set -e; " +
                              line);
        EXPECT_EQ(o.code, 0) << line << '\n' << o.err;
        return o.out;
    }

    /// The codes of a clip's frames as ffmpeg gives them.
    std::string codes(const std::string& clip, const std::string& pixels) const
    {
        done("$F -i " + clip + " -f rawvideo -pix_fmt " + pixels + " codes.raw");
        return read_text("codes.raw");
    }
};

int largest_difference(const std::string& a, const std::string& b, bool of_two_bytes)
{
    EXPECT_EQ(a.size(), b.size());
    EXPECT_FALSE(a.empty());
    int largest = 0;
    const auto byte = [](const std::string& s, std::size_t i) { return static_cast<unsigned char>(s[i]); };
    for (std::size_t i = 0; i + of_two_bytes < std::min(a.size(), b.size()); i += of_two_bytes ? 2 : 1)
    {
        const auto code = [&](const std::string& s) { return byte(s, i) + (of_two_bytes ? 256 * byte(s, i + 1) : 0); };
        largest = std::max(largest, std::abs(code(a) - code(b)));
    }
    return largest;
}

TEST_F(clip_program, everything_but_the_colours_comes_back)
{
    const struct
    {
        const char* name;
        const char* make; ///< what ffmpeg is told between the inputs and the name
    } rows[] = {
        {"all.mp4", "-map 0 -map 1 -map 1 -map 2 -c:v libx264 -pix_fmt yuv420p -c:a aac -c:s mov_text "
                    "-metadata:s:a:1 language=deu -timecode 01:00:00:00 -color_range tv -colorspace bt709 "
                    "-color_primaries bt709 -color_trc bt709"},
        {"all.mov", "-map 0 -map 1 -map 2 -c:v prores_ks -pix_fmt yuv422p10le -c:a pcm_s24le -c:s mov_text "
                    "-timecode 10:00:00:00 -colorspace smpte170m -color_primaries smpte170m -color_trc bt709"},
        {"all.mkv", "-map 0 -map 1 -map 2 -c:v ffv1 -pix_fmt yuv444p12le -c:a flac -c:s srt -attach words.srt "
                    "-metadata:s:t mimetype=text/plain -timecode 01:00:00:00 -color_range pc -colorspace bt2020nc"},
        {"late.mp4", "-map 0 -map 1 -c:v libx264 -pix_fmt yuv420p10le -bf 2 -c:a aac -output_ts_offset 2.5"},
        {"rate.mkv", "-map 0 -map 1 -vf select='not(mod(n\\,3))+not(mod(n\\,7))' -vsync vfr -c:v libx264 "
                     "-pix_fmt yuv420p -c:a libvorbis"},
        {"rate.mp4", "-map 0 -map 1 -vf select='not(mod(n\\,3))+not(mod(n\\,7))' -vsync vfr -c:v mpeg4 -c:a aac"},
    };
    // Streams with their tags and turns, chapters, then every packet of the other streams and every frame's time.
    const std::string look = R"(look() {
        $P -show_entries stream=codec_type,codec_name,width,height,pix_fmt,color_range,color_space,color_primaries,color_transfer,r_frame_rate:stream_disposition=default:stream_tags:format_tags -of compact "$1" |
            sed -E 's/\|tag:(encoder|ENCODER|handler_name|vendor_id|DURATION|major_brand|minor_version|compatible_brands)=[^|]*//g' |
            tr '|' '\n' | sort
        $P -show_chapters -of csv "$1"
        $P -select_streams a -show_packets -show_data_hash md5 -show_entries packet=pts_time,dts_time,data_hash -of csv "$1"
        $P -select_streams s -show_packets -show_data_hash md5 -show_entries packet=pts_time,data_hash -of csv "$1"
        $P -select_streams v -show_frames -show_entries frame=pts_time -of csv "$1"; }; )";
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const std::string name = row.name;
        done("$F $TWO -i words.srt -i facts.txt -map_metadata 3 -map_chapters 3 " + std::string(row.make) + ' ' + name);
        done("$V grade " + name + " --sky 90,60 -o out_" + name + "; " + look + "look " + name + " >before; look out_" +
             name + " >after; diff before after; ! cmp -s " + name + " out_" + name);
        const double before = std::stod(done("$P -show_entries format=duration -of csv=p=0 " + name));
        const double after = std::stod(done("$P -show_entries format=duration -of csv=p=0 out_" + name));
        EXPECT_NEAR(before, after, 0.04) << "a frame";
    }
}

TEST_F(clip_program, a_turned_picture_stays_turned_and_fields_stay_fields)
{
    done("$F $SRC -c:v libx264 a.mp4; $F -i a.mp4 -c copy -metadata:s:v rotate=90 turned.mp4; "
         "$F $SRC -vf setfield=tff -flags +ildct -c:v prores_ks fields.mov; "
         "$V grade turned.mp4 -o t.mp4; $V grade fields.mov -o f.mov");
    const std::string turn = "$P -select_streams v -show_entries stream_side_data=rotation -of csv=p=0 ";
    EXPECT_EQ(done(turn + "turned.mp4"), done(turn + "t.mp4"));
    EXPECT_NE(done(turn + "t.mp4").find("90"), std::string::npos);
    const std::string order = "$P -show_entries frame=interlaced_frame,top_field_first -of csv ";
    EXPECT_EQ(done(order + "fields.mov"), done(order + "f.mov"));
    EXPECT_NE(done(order + "f.mov").find("frame,1,1"), std::string::npos);
}

TEST_F(clip_program, a_bypass_copies_codes_and_an_identity_table_gives_them_back)
{
    std::ofstream identity("identity.cube");
    identity << "LUT_3D_SIZE 2\n";
    for (int i = 0; i < 8; ++i)
        identity << (i & 1) << ' ' << (i >> 1 & 1) << ' ' << (i >> 2 & 1) << '\n';
    identity.close();
    for (const std::string pixels :
         {"yuv420p", "yuv422p10le", "yuv444p", "yuv444p12le", "gbrp10le", "yuvj420p", "rgb24"})
    {
        SCOPED_TRACE(pixels);
        // Within red, green and blue also where a pixel gets its neighbour's chroma.
        done("$F $SRC -frames:v 3 -vf lutrgb=r=96+val/4:g=96+val/4:b=96+val/4 -pix_fmt " + pixels +
             " -c:v ffv1 in.mkv; $V grade in.mkv --bypass --sky 90,90 -o same.mkv -f;"
             "$V grade in.mkv --bypass --input-lut identity.cube -o looked.mkv -f");
        const bool wide = pixels.find("le") != std::string::npos;
        const std::string before = codes("in.mkv", pixels);
        EXPECT_EQ(before, codes("same.mkv", pixels));
        EXPECT_LE(largest_difference(before, codes("looked.mkv", pixels), wide),
                  pixels.find("42") == std::string::npos ? 0 : 1);
    }
}

TEST_F(clip_program, a_still_and_a_clip_of_the_same_frame_agree)
{
    const std::string grade = " --wheel shadows=220,50 --sky 90,60 --film 270,50 -o ";
    done("$F $SRC -frames:v 1 -pix_fmt gbrp16le -c:v ffv1 in.mkv; $F -i in.mkv -pix_fmt rgb48be in.png; $V grade "
         "in.mkv" +
         grade + "clip.mkv; $V grade in.png" + grade + "still.png; $V grade in.mkv" + grade + "frame.%02d.png");
    const std::string still = codes("still.png", "rgb48le");
    EXPECT_LE(largest_difference(still, codes("clip.mkv", "rgb48le"), true), 1);
    EXPECT_LE(largest_difference(still, codes("frame.01.png", "rgb48le"), true), 1);
    EXPECT_GT(largest_difference(still, codes("in.png", "rgb48le"), true), 500);
}

TEST_F(clip_program, a_ramp_keeps_its_steps)
{
    done("$F -f lavfi -i color=black:s=1024x16:d=0.04,format=gray10le,geq=lum=X -pix_fmt yuv444p10le -color_range pc "
         "-colorspace bt709 -c:v ffv1 in.mkv; $V grade in.mkv --film 90,40 -o out.mkv");
    for (const char* clip : {"in.mkv", "out.mkv"})
    {
        const std::string all = codes(clip, "yuv444p10le");
        int step = 0;
        for (std::size_t x = 2; x < 2048; x += 2)
        {
            const auto code = [&](std::size_t i)
            { return static_cast<unsigned char>(all[i]) + 256 * static_cast<unsigned char>(all[i + 1]); };
            step = std::max(step, std::abs(code(x) - code(x - 2)));
        }
        EXPECT_LE(step, std::string(clip) == "in.mkv" ? 1 : 2) << clip;
    }
}

TEST_F(clip_program, mistakes_and_losses_are_said_on_one_line)
{
    done("$F $TWO -c:v libx264 -c:a pcm_s16le a.mov; $F $SRC -vf scale=160:88 -c:v cinepak c.avi; echo no >text.mp4");
    const struct
    {
        const char* line;
        int code;
        const char* said;
    } rows[] = {
        {"$V grade a.mov -o o.mp4", 0, "audio 1 (pcm_s16le) is left out: mp4 cannot hold it"},
        {"$V grade c.avi -o o.mov", 4, "its codec, cinepak, cannot be written (ask for another, as in --codec h264"},
        {"$V grade a.mov -o o.png", 4, "shot.%04d.png"},
        {"$V grade a.mov -o o.xyz", 4, "end it in .mov, .mp4 or .mkv"},
        {"$V grade a.mov --codec prores -o p.mp4", 4, "mp4 cannot hold this kind of prores"},
        {"$V grade a.mov --codec h265 -o o.mov", 4, "--codec takes h264, hevc"},
        {"$V grade a.mov --codec prores --quality 50 -o o.mov", 4, "prores_lt"},
        {"$V grade a.mov --codec prores --depth 8 -o o.mov", 4, "it takes yuv422p10le"},
        {"$V grade a.mov --codec ffv1 --pix-fmt yuv999 -o o.mov", 4, "yuv999"},
        {"$V grade text.mp4 -o o.mov", 4, R"("text.mp4": is not a picture)"},
        {"$V grade a.mov --matrix 600 -o o.mov", 2, "--matrix"},
        {"$V grade a.mov -o a.mov", 6, "is also the input"},
        {"(ulimit -f 8; exec $V grade a.mov --codec rawvideo -o o.mov)", 6, R"("o.mov": )"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const auto before = entries();
        const outcome o = run(row.line);
        EXPECT_EQ(o.code, row.code);
        EXPECT_NE(o.err.find(row.said), std::string::npos) << o.err;
        EXPECT_EQ(std::count(o.err.begin(), o.err.end(), '\n'), 1) << o.err;
        EXPECT_TRUE(row.code == 0 || entries() == before) << "nothing is left behind";
    }
}

TEST_F(clip_program, a_damaged_frame_is_told_with_its_time_and_the_rest_is_written)
{
    done("$F $SRC -c:v prores_ks -g 1 in.mov");
    // The tenth frame, at 0.36 s, loses its middle.
    const std::string at = done("$P -show_packets -show_entries packet=pos,size -of csv=p=0 in.mov | sed -n 10p");
    const std::size_t size = std::stoul(at), place = std::stoul(at.substr(at.find(',') + 1));
    std::fstream file("in.mov", std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(place + 8));
    file << std::string(std::min<std::size_t>(size, 2000) - 8, '\xAA');
    file.close();
    const outcome o = run("$V grade in.mov -o out.mov");
    EXPECT_EQ(o.code, 1);
    EXPECT_NE(o.err.find("\"in.mov\": at 0:00.360: the frame"), std::string::npos) << o.err;
    EXPECT_GE(std::stoi(done("$P -count_frames -show_entries stream=nb_read_frames -of csv=p=0 out.mov")), 24);

    done("$F $SRC -c:v mjpeg in.avi; truncate -s 60% in.avi 2>/dev/null || head -c 100000 in.avi >cut.avi; "
         "head -c $(($(stat -c %s in.avi) * 6 / 10)) in.avi >cut.avi");
    EXPECT_EQ(run("$V grade cut.avi -o cut.mov").code, 1) << "a clip that ends early";
}

TEST_F(clip_program, an_interrupt_leaves_nothing_half_done)
{
    done("$F -f lavfi -i testsrc2=s=1280x720:r=25:d=20 -c:v mjpeg in.avi; mkdir out");
    const outcome o =
        run("$V grade in.avi -o out/long.avi --progress json 2>events & pid=$!; "
            "for i in $(seq 600); do [ -s events ] && break; sleep 0.05; done; kill -TERM $pid; wait $pid");
    EXPECT_EQ(o.code, 130);
    EXPECT_TRUE(fs::is_empty("out"));
    const std::string events = read_text("events");
    for (const char* part :
         {"{\"input\":\"in.avi\",\"frames\":", "\"total_frames\":500", "\"fps\":", "\"seconds_left\":"})
        EXPECT_NE(events.find(part), std::string::npos) << events;
}

TEST_F(clip_program, dry_runs_name_every_stream_and_write_nothing)
{
    done("$F $TWO -c:v libx264 -pix_fmt yuv420p -c:a pcm_s16le a.mov");
    const auto before = entries();
    EXPECT_EQ(done("$V grade a.mov -o o.mp4 --dry-run -q"), "would write o.mp4: 160 x 90, 25 fps, mp4 h264 yuv420p\n"
                                                            "  video 1 (h264): graded (h264, yuv420p)\n"
                                                            "  audio 1 (pcm_s16le): left out (mp4 cannot hold it)\n");
    EXPECT_EQ(entries(), before);
}

TEST_F(clip_program, the_range_and_the_matrix_that_are_asked_for_take_the_place_of_the_tags)
{
    done("$F $SRC -frames:v 1 -pix_fmt yuv444p -c:v ffv1 -colorspace bt709 -color_range tv in.mkv; "
         "$V grade in.mkv --range full --matrix 2020 --sky 90,60 -o out.mkv; $V grade in.mkv --sky 90,60 -o plain.mkv");
    EXPECT_EQ(done("$P -show_entries stream=color_range,color_space -of csv=p=0 out.mkv"), "pc,bt2020nc\n");
    EXPECT_NE(codes("out.mkv", "yuv444p"), codes("plain.mkv", "yuv444p"));
    // Another range and matrix by the codec's own rule: the colours stay.
    done("$V grade in.mkv --bypass --codec mjpeg --quality 100 -o jpeg.mov");
    EXPECT_EQ(done("$P -show_entries stream=color_range,color_space -of csv=p=0 jpeg.mov"), "pc,bt470bg\n");
    EXPECT_GT(
        std::stod(done("$F -v info -i in.mkv -i jpeg.mov -lavfi '[0]format=rgb24[a];[1]format=rgb24[b];[a][b]psnr' "
                       "-f null - 2>&1 | sed -n 's/.*average:\\([0-9.]*\\).*/\\1/p'")),
        30);
}

} // namespace
} // namespace ov1
