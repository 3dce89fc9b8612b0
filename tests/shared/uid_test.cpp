#include "shared/iobject.h"
#include "shared/uid.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(uid, gives_the_published_hashes)
{
    // Vectors of the FNV reference code, 32-bit FNV-1a.
    EXPECT_EQ(make_uid(""), 0x811C9DC5u);
    EXPECT_EQ(make_uid("a"), 0xE40C292Cu);
    EXPECT_EQ(make_uid("foobar"), 0xBF9CF968u);
    // A byte above 127 is hashed unsigned.
    EXPECT_EQ(make_uid("\xFF"), (0x811C9DC5u ^ 0xFFu) * 0x01000193u);
}

class thing : public iobject
{
public:
    bool query_interface(const std::string& name, iobject** out) override
    {
        return answer_query(make_uid("thing"), this, name, out);
    }
};

TEST(iobject, accepts_only_its_own_class_name)
{
    thing object;
    iobject* found = nullptr;
    EXPECT_TRUE(object.query_interface("thing", &found));
    EXPECT_EQ(found, &object);
    EXPECT_FALSE(object.query_interface("iobject", &found));
    EXPECT_EQ(found, nullptr) << "a failed query stores null";
    EXPECT_FALSE(object.query_interface("thing", nullptr));
}

} // namespace
} // namespace ov1
