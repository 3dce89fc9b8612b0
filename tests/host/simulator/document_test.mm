// Documents of the simulator: round trips and damaged files.
#include "host/simulator/simulated_host.h"

#include "support/pool_guard.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

/// A host with one parameter of each type, without an instance of the effect.
struct declared_host
{
    declared_host()
    {
        const auto declare = [&](std::uint32_t id, const char* name, store_value value)
        { EXPECT_TRUE(host.get_parameters().declare(id, {.name = name, .default_value = std::move(value)})); };
        declare(1, "State", store_archive());
        declare(2, "Amount", 0.5);
        declare(3, "Menu", 2);
        declare(4, "On & <off>", true);
        declare(5, "Größe \"rot\"", store_color{0.25, 0.5, 0.75, 1});
    }

    simulated_host host{"no such class"};
    parameter_store& store = host.get_parameters();
};

store_archive all_bytes()
{
    store_archive archive(256);
    for (std::size_t i = 0; i < archive.size(); ++i)
        archive[i] = static_cast<std::uint8_t>(i);
    return archive;
}

void set_everything(parameter_store& store)
{
    store.set(1, kCMTimeZero, all_bytes());
    store.set(2, kCMTimeZero, 0.1);
    store.set_keyframe(2, CMTimeMake(1001, 30000), 0.25);
    store.set_keyframe(2, CMTimeMake(-7, 24), -1e-300);
    store.set(3, kCMTimeZero, 9);
    store.set_keyframe(4, kCMTimeZero, false);
    store.set(5, kCMTimeZero, store_color{1, 0.1, 0, 0.5});
}

void expect_same(const parameter_store& a, const parameter_store& b)
{
    const auto left = a.copy(), right = b.copy();
    for (const auto& [id, p] : left)
        EXPECT_TRUE(same_values(p, right.at(id))) << id;
}

std::string text_of_document(const simulated_host& host)
{
    const auto bytes = host.write_document();
    EXPECT_TRUE(bytes);
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
}

result<> read_text(simulated_host& host, const std::string& text)
{
    return host.read_document({text.begin(), text.end()});
}

TEST(document, values_keyframes_and_archives_come_back_to_the_bit)
{
    const pool_guard pool;
    declared_host saved, opened;
    set_everything(saved.store);
    ASSERT_TRUE(read_text(opened.host, text_of_document(saved.host)));
    expect_same(saved.store, opened.store);
}

TEST(document, damage_is_refused_whole_and_the_reason_names_the_parameter)
{
    const pool_guard pool;
    declared_host saved;
    set_everything(saved.store);
    const std::string good = text_of_document(saved.host);
    const struct
    {
        const char* name;
        std::string from, to;
        const char* reason;
    } rows[] = {
        {"nothing", good, "", "is not a document of this program"},
        {"other text", good, "no document", "is not a document of this program"},
        {"zeros", good, std::string(64, '\0'), "is not a document of this program"},
        {"a list", good, "<?xml version=\"1.0\"?><plist version=\"1.0\"><array/></plist>",
         "is not a document of this program"},
        {"the first half", good, good.substr(0, good.size() / 2), "is not a document of this program"},
        {"the second half", good, good.substr(good.size() / 2), "is not a document of this program"},
        {"another format", "document 1", "document 2", "is not a document of this program"},
        {"no parameters", "<key>parameters<", "<key>nothing<", "is not a document of this program"},
        {"a value without a type", "float 0.1<", "0.1<", "parameter 2 is damaged"},
        {"a value that is not finite", "float 0.1<", "float inf<", "parameter 2 is damaged"},
        {"a value that is not a text", "<string>float 0.1</string>", "<array/>", "parameter 2 is damaged"},
        {"no value", "<key>archive<", "<key>nothing<", "parameter 1 is damaged"},
        {"an archive that is a text", "data>", "string>", "parameter 1 is damaged"},
        {"a keyframe of another type", "float 0.25<", "int 1<", "parameter 2 is damaged"},
        {"a keyframe without a timescale", "1001 30000 1 0", "1001 0 1 0", "parameter 2 is damaged"},
        {"a time that is not a time", "1001 30000 1 0", "soon", "parameter 2 is damaged"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        std::string text = good;
        ASSERT_NE(text.find(row.from), std::string::npos);
        for (std::size_t at = 0; (at = text.find(row.from, at)) != std::string::npos; at += row.to.size())
            text.replace(at, row.from.size(), row.to);
        declared_host opened, untouched;
        const auto read = read_text(opened.host, text);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().kind, failure_kind::invalid_grade);
        EXPECT_EQ(read.error().reason, row.reason);
        expect_same(opened.store, untouched.store);
    }
}

} // namespace
} // namespace ov1
