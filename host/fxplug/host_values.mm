#include "host/fxplug/host_values.h"

namespace ov1
{

// The portable half of the bridge has numbers of its own; here they meet the host's.
static_assert(host_flag::not_animatable == kFxParameterFlag_NOT_ANIMATABLE);
static_assert(host_flag::hidden == kFxParameterFlag_HIDDEN);
static_assert(host_flag::custom_ui == kFxParameterFlag_CUSTOM_UI);
static_assert(host_flag::dont_remap_colors == kFxParameterFlag_DONT_REMAP_COLORS);

namespace
{

NSString* host_text(const std::string& text) { return [NSString stringWithUTF8String:text.c_str()]; }

NSArray* host_texts(const std::vector<std::string>& texts)
{
    NSMutableArray* const all = [NSMutableArray array];
    for (const std::string& text : texts)
        [all addObject:host_text(text)];
    return all;
}

// The slider covers the parameter's whole range: the host would let the user type values outside it.
bool declare_float_slider(id<FxParameterCreationAPI_v5> api, const host_declaration& p)
{
    return [api addFloatSliderWithName:host_text(p.name)
                           parameterID:static_cast<UInt32>(p.id)
                          defaultValue:std::get<double>(p.default_value)
                          parameterMin:p.min
                          parameterMax:p.max
                             sliderMin:p.min
                             sliderMax:p.max
                                 delta:p.delta
                        parameterFlags:p.flags];
}

bool declare_int_slider(id<FxParameterCreationAPI_v5> api, const host_declaration& p)
{
    return [api addIntSliderWithName:host_text(p.name)
                         parameterID:static_cast<UInt32>(p.id)
                        defaultValue:std::get<int>(p.default_value)
                        parameterMin:static_cast<int>(p.min)
                        parameterMax:static_cast<int>(p.max)
                           sliderMin:static_cast<int>(p.min)
                           sliderMax:static_cast<int>(p.max)
                               delta:static_cast<int>(p.delta)
                      parameterFlags:p.flags];
}

bool declare_color(id<FxParameterCreationAPI_v5> api, const host_declaration& p)
{
    const auto c = std::get<host_color>(p.default_value);
    return [api addColorParameterWithName:host_text(p.name)
                              parameterID:static_cast<UInt32>(p.id)
                               defaultRed:c.red
                             defaultGreen:c.green
                              defaultBlue:c.blue
                             defaultAlpha:c.alpha
                           parameterFlags:p.flags];
}

} // namespace

bool declare_at_host(id<FxParameterCreationAPI_v5> api, const host_declaration& p)
{
    const auto id = static_cast<UInt32>(p.id);
    switch (p.control)
    {
    case host_control::float_slider:
        return declare_float_slider(api, p);
    case host_control::int_slider:
        return declare_int_slider(api, p);
    case host_control::popup:
        // The default is an index into the entries, unsigned in the host's interface.
        return [api addPopupMenuWithName:host_text(p.name)
                             parameterID:id
                            defaultValue:static_cast<UInt32>(std::get<int>(p.default_value))
                             menuEntries:host_texts(p.entries)
                          parameterFlags:p.flags];
    case host_control::toggle:
        return [api addToggleButtonWithName:host_text(p.name)
                                parameterID:id
                               defaultValue:std::get<bool>(p.default_value) ? YES : NO
                             parameterFlags:p.flags];
    case host_control::color:
        return declare_color(api, p);
    case host_control::none:
        break;
    }
    return false;
}

std::optional<host_value> read_host_value(id<FxParameterRetrievalAPI_v6> api, host_control control, int host_id,
                                          CMTime time)
{
    const auto id = static_cast<UInt32>(host_id);
    // A popup is read as an integer: the interface has no method for it.
    // A variable counts only when the host answers YES; a refusal may leave anything in it.
    double number = 0.0;
    int whole = 0;
    BOOL on = NO;
    host_color c;
    switch (control)
    {
    case host_control::float_slider:
        if ([api getFloatValue:&number fromParameter:id atTime:time])
            return number;
        break;
    case host_control::int_slider:
    case host_control::popup:
        if ([api getIntValue:&whole fromParameter:id atTime:time])
            return whole;
        break;
    case host_control::toggle:
        if ([api getBoolValue:&on fromParameter:id atTime:time])
            return on != NO;
        break;
    case host_control::color:
        if ([api getRedValue:&c.red
                   greenValue:&c.green
                    blueValue:&c.blue
                   alphaValue:&c.alpha
                fromParameter:id
                       atTime:time])
            return c;
        break;
    case host_control::none:
        break;
    }
    return std::nullopt;
}

bool write_host_value(id<FxParameterSettingAPI_v5> api, const host_value& value, int host_id, CMTime time)
{
    const auto id = static_cast<UInt32>(host_id);
    if (const auto* number = std::get_if<double>(&value))
        return [api setFloatValue:*number toParameter:id atTime:time];
    // Also a popup's index.
    if (const auto* whole = std::get_if<int>(&value))
        return [api setIntValue:*whole toParameter:id atTime:time];
    if (const auto* on = std::get_if<bool>(&value))
        return [api setBoolValue:*on ? YES : NO toParameter:id atTime:time];
    const auto& c = std::get<host_color>(value);
    return [api setRedValue:c.red greenValue:c.green blueValue:c.blue alphaValue:c.alpha toParameter:id atTime:time];
}

} // namespace ov1
