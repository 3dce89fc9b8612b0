// Text of the effect template for the host's motion-graphics program: one ".moef" document.
//
//   <ozml version="5.9">
//     <displayversion>, then a <factory> for each type of object
//     <scene>
//       <sceneSettings> 1920 x 1080, 30 frames a second
//       <publishSettings> a <target> for each control that the video host shows
//       <timeRange>, <playRange>
//       <layer> the <scenenode> "Effect Source", a drop zone; in it the <filter> with its <parameter> elements and
//       "Mix"
//
// Times are four integers, "value timescale flags epoch". Numbers use the classic locale, whatever the desktop's
// locale.
#pragma once

#include "host/bridge/parameter_map.h"

#include <span>
#include <string>

namespace ov1
{

/// Identifies the effect in the template.
struct template_subject
{
    std::string display_name; ///< of the filter, for the user
    std::string plugin_uuid;  ///< as in the properties of the program's bundle
    std::string plugin_name;  ///< of the effect itself
};

/// Makes the document. It publishes the state (whose control is the button) and all parameters that are not hidden.
/// Every parameter has an element whose value is the default; a colour's element contains one per channel. The state
/// has no element: the effect itself makes its default.
std::string template_document(const template_subject& subject, std::span<const host_declaration> parameters);

} // namespace ov1
