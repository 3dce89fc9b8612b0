// The classes implement the protocols that they adopt, and instances release everything.
#include "support/bridge_fixture.h"

#import <FxPlug/protocol_records.h>
#import <objc/runtime.h>

// GNUstep's count of living objects; its header declares it for debug builds only.
extern "C" BOOL GSDebugAllocationActive(BOOL active);
extern "C" int GSDebugAllocationCount(Class kind);

namespace ov1
{
namespace
{

TEST(conformance, every_adopted_protocol_is_implemented_with_the_declared_types)
{
    const pool_guard pool;
    const struct
    {
        Class kind;
        Protocol* claimed;
    } rows[] = {
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxTileableEffect)},
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxCustomParameterViewHost_v2)},
        {[fcp_wrapper_veridialfcpx_3_7_0_0 class], @protocol(FxAnalyzer)},
        {[fcpx_state_param class], @protocol(FxCustomParameterInterpolation_v2)},
        {NSClassFromString(@"simulator_parameter_creation"), @protocol(FxParameterCreationAPI_v5)},
        {NSClassFromString(@"simulator_parameter_retrieval"), @protocol(FxParameterRetrievalAPI_v6)},
        {NSClassFromString(@"simulator_parameter_setting"), @protocol(FxParameterSettingAPI_v6)},
        {NSClassFromString(@"simulator_parameter_setting"), @protocol(FxParameterSettingAPI_v5)},
        {NSClassFromString(@"simulator_actions"), @protocol(FxCustomParameterActionAPI_v4)},
        {NSClassFromString(@"simulator_timing"), @protocol(FxTimingAPI_v4)},
        {NSClassFromString(@"simulator_analysis"), @protocol(FxAnalysisAPI)},
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

TEST(instances, release_every_object)
{
    const pool_guard pool;
    GSDebugAllocationActive(YES);
    for (int i = 0; i < 1000; ++i)
    {
        const pool_guard of_one;
        simulated_host host;
        ASSERT_TRUE(host.create_instance());
        ASSERT_EQ(GSDebugAllocationCount([fcp_wrapper_veridialfcpx_3_7_0_0 class]), 1);
        host.add_to_document();
        [static_cast<id>(host.get_plugin()) pushState];
        ASSERT_TRUE(i % 10 > 0 || host.render(rgba_picture(8, 8)));
        if (i % 10 == 5)
            [static_cast<id>(host.get_plugin()) handleGUIButton]; // then released before the frame has arrived
    }
    for (const char* name : {"fcp_wrapper_veridialfcpx_3_7_0_0", "fcpx_state_param", "idle_timer_target", "FxImageTile",
                             "IOSurface", "simulator_api_manager", "strict_unarchiver"})
        EXPECT_EQ(GSDebugAllocationCount(NSClassFromString([NSString stringWithUTF8String:name])), 0) << name;
    GSDebugAllocationActive(NO);
}

} // namespace
} // namespace ov1
