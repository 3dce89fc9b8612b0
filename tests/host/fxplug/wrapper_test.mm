// The plug-in class in the simulated host: declarations, values in both directions, state, documents.
#include "support/bridge_fixture.h"

#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"
#include "host/bridge/parameter_map.h"
#include "host/simulator/value_archive.h"

// GNUstep's count of living objects; its header declares it for debug builds only.
extern "C" BOOL GSDebugAllocationActive(BOOL active);
extern "C" int GSDebugAllocationCount(Class kind);

namespace ov1
{
namespace
{

struct wrapper : bridge_fixture
{
    store_archive state_payload()
    {
        const auto archive = std::get<store_archive>(at_host(1));
        const auto unarchived = unarchive_value(archive, [fcpx_state_param class]);
        if (!unarchived)
        {
            ADD_FAILURE() << unarchived.error().reason;
            return {};
        }
        NSData* const data = static_cast<fcpx_state_param*>(*unarchived).data;
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        return {first, first + [data length]};
    }
};

TEST_F(wrapper, declares_the_state_and_every_parameter)
{
    const auto declared = host.get_parameters().copy();
    ASSERT_EQ(declared.size(), 7u);
    EXPECT_EQ(declared.at(1).name, "State");
    EXPECT_EQ(declared.at(1).flags, 0x41u);
    EXPECT_EQ(declared.at(2).min, -50);
    EXPECT_EQ(declared.at(3).entries.size(), 15u);
    EXPECT_EQ(declared.at(4).max, 18);
    for (const host_declaration& p : declare_parameters(*component()))
    {
        const stored_parameter& got = declared.at(static_cast<std::uint32_t>(p.id));
        EXPECT_EQ(got.name, p.name);
        EXPECT_EQ(got.flags, p.flags);
    }
    EXPECT_EQ(declared.at(3).default_value, store_value(2)) << "an index";
    EXPECT_EQ(declared.at(6).default_value, store_value(store_color{0.25, 0.5, 0.75, 1}));
    EXPECT_EQ(state_payload(), component()->get_state()) << "a new value carries the default state alone";
    EXPECT_TRUE([plugin() classForCustomParameterID:1] == [fcpx_state_param class]);
    EXPECT_TRUE([plugin() classForCustomParameterID:2] == Nil);
}

TEST(wrapper_without_creation, reports_code_14_and_declares_nothing)
{
    const pool_guard pool;
    simulated_host host;
    host.refuse_interface("FxParameterCreationAPI_v5");
    const auto created = host.create_instance();
    ASSERT_FALSE(created);
    EXPECT_EQ(created.error().reason, "Unable to get the FxParameterCreationAPI_v5 in "
                                      "-[fcp_wrapper_veridialfcpx_3_7_0_0 addParametersWithError:]");
    EXPECT_TRUE(host.get_parameters().copy().empty());
    const id plugin = static_cast<id>(host.get_plugin());
    NSError* error = nil;
    EXPECT_FALSE([plugin addParametersWithError:&error]);
    EXPECT_EQ([error code], 14);
    EXPECT_FALSE([plugin addParametersWithError:NULL]) << "the host need not ask for the error";
}

TEST_F(wrapper, adopts_the_effects_protocols_and_has_eight_properties)
{
    NSObject<FxTileableEffect, FxCustomParameterViewHost_v2, FxAnalyzer>* const effect = plugin();
    NSDictionary* properties = nil;
    ASSERT_TRUE([effect properties:&properties error:NULL]);
    NSDictionary* const expected = @{
        @"IsThreadSafe" : @1,
        @"MayRemapTime" : @1,
        @"UsesRationalTime" : @1,
        @"DesiredProcessingColorInfo" : @2,
        @"VariesWhenParamsAreStatic" : @0,
        @"NeedsFullBuffer" : @1,
        @"PreservesAlpha" : @1,
        @"ChangesOutputSize" : @0
    };
    EXPECT_TRUE([properties isEqual:expected]);
}

TEST_F(wrapper, edits_in_the_inspector_reach_the_component_as_edits)
{
    EXPECT_TRUE(host.edit(2, 25.5) && host.edit(3, 14) && host.edit(4, 18) && host.edit(5, false) &&
                host.edit(6, store_color{1, 0.5, 0, 0.25}));
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 25.5f);
    EXPECT_EQ(value(bridge_component::menu).as_integral(), 17);
    EXPECT_EQ(value(bridge_component::steps).as_integral(), 18);
    EXPECT_FALSE(value(bridge_component::on).as_boolean());
    EXPECT_EQ(value(bridge_component::tint).as_color(), (param_argb{0.25f, 1, 0.5f, 0}));
    const auto sets = host.get_parameters().get_set_count();
    [plugin() synchronizeHostParameters];
    EXPECT_EQ(host.get_parameters().get_set_count(), sets) << "the host has its own edits already";
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(value(bridge_component::tint).as_color(), (param_argb{1, 0.25f, 0.5f, 0.75f}));
    EXPECT_FALSE([plugin() parameterChanged:8 atTime:kCMTimeZero error:NULL]) << "there is no such parameter";
}

TEST_F(wrapper, changes_of_the_effect_reach_the_host_once_and_only_if_they_differ)
{
    set(bridge_component::amount, param_cell::of(-7.25f));
    set(bridge_component::menu, param_cell::of(4));
    set(bridge_component::on, param_cell::of(true));
    const auto sets = host.get_parameters().get_set_count();
    [plugin() synchronizeHostParameters];
    EXPECT_EQ(at_host(2), store_value(-7.25));
    EXPECT_EQ(at_host(3), store_value(1)) << "counted from the lower bound";
    EXPECT_EQ(host.get_parameters().get_set_count(), sets + 2) << "the host had the toggle's value already";
    [plugin() synchronizeHostParameters];
    EXPECT_EQ(host.get_parameters().get_set_count(), sets + 2);
    EXPECT_EQ(host.get_parameters().get_open_actions(), 0);
}

TEST_F(wrapper, an_animated_parameter_is_read_at_the_time_of_the_call)
{
    host.get_parameters().set_keyframe(2, CMTimeMake(0, 30), 0.0);
    host.get_parameters().set_keyframe(2, CMTimeMake(30, 30), 60.0);
    host.set_playhead(CMTimeMake(15, 30));
    ASSERT_TRUE(host.render(rgba_picture(4, 4)));
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 30.0f);
}

TEST_F(wrapper, disabling_a_parameter_sets_its_hidden_bit_only)
{
    host.get_parameters().set_flags(4, 0x20200);
    component()->get_parameter(bridge_component::steps)->set_enabled(false);
    EXPECT_EQ(host.get_parameters().copy().at(4).flags, 0x20202u);
    component()->get_parameter(bridge_component::steps)->set_enabled(true);
    EXPECT_EQ(host.get_parameters().copy().at(4).flags, 0x20200u);
    host.refuse_interface("FxParameterSettingAPI_v6"); // an older host
    component()->get_parameter(bridge_component::steps)->set_enabled(false);
    EXPECT_EQ(host.get_parameters().copy().at(4).flags, 0x20200u);
}

TEST_F(wrapper, a_pushed_state_never_repeats_and_restores_all_values)
{
    set(bridge_component::amount, param_cell::of(33.0f));
    ASSERT_TRUE([plugin() pushState]);
    const auto one = state_payload();
    ASSERT_TRUE([plugin() pushState]);
    EXPECT_NE(state_payload(), one);
    EXPECT_EQ(host.get_parameters().get_undo_count(), 2u) << "each push is an undo step for the user";
    set(bridge_component::amount, param_cell::of(1.0f));
    [plugin() pullState];
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 33.0f);
}

TEST_F(wrapper, a_missing_or_damaged_state_changes_nothing)
{
    set(bridge_component::amount, param_cell::of(33.0f));
    const auto damaged = [](std::vector<std::uint8_t> payload)
    {
        fcpx_state_param* const state = [[[fcpx_state_param alloc] init] autorelease];
        state.data = [NSData dataWithBytes:payload.data() length:payload.size()];
        return archive_value(state);
    };
    auto cut_short = component()->get_state();
    cut_short.resize(cut_short.size() - 1);
    for (const store_archive& archive : {store_archive(), damaged({}), damaged(cut_short), store_archive{1, 2, 3}})
    {
        SCOPED_TRACE(archive.size());
        host.get_parameters().set(1, kCMTimeZero, archive);
        host.add_to_document();
        EXPECT_EQ(value(bridge_component::amount).as_continuous(), 33.0f);
    }
}

TEST_F(wrapper, a_value_that_replaces_an_older_parameter_reaches_the_host)
{
    param_value old = component()->get_parameter(bridge_component::amount)->get_param_value();
    old.value = param_cell::of(77.0f);
    const auto blob = write_state(std::vector<state_record>{{old, make_uid("Old Amount")}});
    fcpx_state_param* const state = [[[fcpx_state_param alloc] init] autorelease];
    state.data = [NSData dataWithBytes:blob.data() length:blob.size()];
    host.get_parameters().set(1, kCMTimeZero, archive_value(state));
    host.add_to_document();
    EXPECT_EQ(at_host(2), store_value(77.0));
    ASSERT_TRUE(host.render(rgba_picture(4, 4)));
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 77.0f) << "the host's values do not undo it";
}

TEST_F(wrapper, without_an_interface_its_operations_do_nothing)
{
    for (const char* name : {"FxCustomParameterActionAPI_v4", "FxParameterRetrievalAPI_v6", "FxParameterSettingAPI_v5"})
    {
        SCOPED_TRACE(name);
        const auto before = component()->get_state();
        host.refuse_interface(name);
        const bool can_read = std::string(name) == "FxParameterSettingAPI_v5";
        const bool can_write = std::string(name) == "FxParameterRetrievalAPI_v6";
        EXPECT_EQ([plugin() synchronizeComponentParameter:2], can_read);
        EXPECT_EQ([plugin() pushState], can_write);
        [plugin() pullState];
        [plugin() synchronizeHostParameters];
        [plugin() handleGUIButton];
        (void)host.wait_for_analysis();
        EXPECT_EQ(component()->get_state(), before);
        host.refuse_interface(name, false);
    }
    EXPECT_EQ(host.get_parameters().get_open_actions(), 0);
}

TEST(state_value, is_always_equal_never_blended_and_decoded_as_it_was)
{
    const pool_guard pool;
    [fcpx_state_param setDefaultState:{1, 2, 3}];
    fcpx_state_param* const one = [[[fcpx_state_param alloc] init] autorelease];
    fcpx_state_param* const other = [[[fcpx_state_param alloc] init] autorelease];
    other.data = [NSData dataWithBytes:"x" length:1];
    EXPECT_TRUE([one isEqual:other]);
    auto* const between = static_cast<fcpx_state_param*>([one interpolateBetween:other withWeight:0.5f]);
    EXPECT_EQ([between.data length], 3u);
    EXPECT_TRUE(between != one);
    fcpx_state_param* const copy = [[one copy] autorelease];
    EXPECT_TRUE(copy.data == one.data);
    const auto back = unarchive_value(archive_value(one), [fcpx_state_param class]);
    ASSERT_TRUE(back) << back.error().reason;
    EXPECT_TRUE([static_cast<fcpx_state_param*>(*back).data isEqualToData:one.data]);
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
