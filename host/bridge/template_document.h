// The effect template for the host's motion-graphics program: one ".moef" document.
//
//   <ozml version="5.9">
//     <displayversion>, <factory> for each kind of object
//     <scene>
//       <sceneSettings> 1920 x 1080, 30 frames a second
//       <publishSettings> a target for each control that the video host shows
//       <timeRange>, <playRange>
//       <layer> <scenenode> the drop zone, "Effect Source" <filter> the effect, with its <parameter> elements and "Mix"
//
// Times are "value timescale flags epoch". Numbers are those of the classic locale, whatever the desktop's.
#pragma once

#include "host/bridge/parameter_map.h"

#include <span>
#include <string>

namespace ov1
{

/// Which effect the template is of.
struct template_subject
{
    std::string display_name;
    std::string plugin_uuid;
    std::string plugin_name;
};

/// The document. Published are the state, which is the button, and all parameters that are not hidden; every parameter
/// has an element with its default as its value, a colour one for each channel below its own. The state has none: its
/// default is the effect's to make.
std::string template_document(const template_subject& subject, std::span<const host_declaration> parameters);

} // namespace ov1
