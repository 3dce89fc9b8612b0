// What the classes claim, against the declarations; and what remains of an instance.
#include "support/bridge_stage.h"

#import <FxPlug/protocol_records.h>
#include <fstream>
#import <objc/runtime.h>
#include <unistd.h>

namespace ov1
{
namespace
{

TEST(conformance, every_claimed_protocol_is_answered_in_full_with_the_declared_types)
{
    const pool_scope pool;
    const struct
    {
        Class kind;
        Protocol* claimed;
        bool optionals_too;
    } rows[] = {
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxTileableEffect), true},
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxCustomParameterViewHost_v2), true},
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxAnalyzer), true},
        {[fcpx_state_param class], @protocol(FxCustomParameterInterpolation_v2), true},
        {NSClassFromString(@"host_parameter_creation"), @protocol(FxParameterCreationAPI_v5), true},
        {NSClassFromString(@"host_parameter_retrieval"), @protocol(FxParameterRetrievalAPI_v6), true},
        {NSClassFromString(@"host_parameter_setting"), @protocol(FxParameterSettingAPI_v6), true},
        {NSClassFromString(@"host_parameter_setting"), @protocol(FxParameterSettingAPI_v5), true},
        {NSClassFromString(@"host_actions"), @protocol(FxCustomParameterActionAPI_v4), true},
        {NSClassFromString(@"host_timing"), @protocol(FxTimingAPI_v4), true},
        {NSClassFromString(@"host_analysis"), @protocol(FxAnalysisAPI), true},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(protocol_getName(row.claimed));
        ASSERT_TRUE(row.kind != Nil);
        EXPECT_TRUE(class_conformsToProtocol(row.kind, row.claimed));
        int declared = 0;
        for (const BOOL required : {YES, NO})
        {
            unsigned count = 0;
            objc_method_description* const methods =
                protocol_copyMethodDescriptionList(row.claimed, required, YES, &count);
            for (unsigned i = 0; i < count; ++i)
            {
                const Method method = class_getInstanceMethod(row.kind, methods[i].name);
                ASSERT_TRUE(method != nullptr) << sel_getName(methods[i].name);
                EXPECT_STREQ(method_getTypeEncoding(method), methods[i].types) << sel_getName(methods[i].name);
            }
            declared += static_cast<int>(count);
            free(methods);
        }
        EXPECT_GT(declared, 0);
    }
}

long resident_pages()
{
    long size = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident;
}

TEST(instances, leave_nothing_behind)
{
    const pool_scope pool;
    const auto one = [](bool with_render)
    {
        const pool_scope pool;
        simulated_host host;
        host_error error;
        ASSERT_TRUE(host.create_instance(error));
        const std::weak_ptr<icomponent_v1> component = [static_cast<id>(host.get_plugin()) getComponent];
        @autoreleasepool
        {
            host.add_to_document();
            [static_cast<id>(host.get_plugin()) pushState];
            host_picture out;
            if (with_render)
                ASSERT_TRUE(host.render(host_picture(8, 8), out, {}, error));
        }
        ASSERT_EQ([static_cast<id>(host.get_plugin()) retainCount], 1u);
    };
    for (int i = 0; i < 100; ++i)
        one(true);
    const long before = resident_pages();
    for (int i = 0; i < 1000; ++i)
        one(i % 10 == 0);
    // A page lost with each instance would be 1,000; what the allocator keeps for itself is far less.
    EXPECT_LT(resident_pages() - before, 500);
}

} // namespace
} // namespace ov1
