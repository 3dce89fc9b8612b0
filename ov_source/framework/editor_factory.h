// Creates editors for components, which know no toolkit.
#pragma once

#include <functional>
#include <memory>

namespace ov1
{

class icomponent_v1;
class iview_v1;

/// Makes an editor that refers to the component weakly. May return null.
using editor_factory = std::function<std::shared_ptr<iview_v1>(std::weak_ptr<icomponent_v1>)>;

/// For the whole process; replaces the previous factory, an empty one removes it. Any thread.
void install_editor_factory(editor_factory factory);

/// A new editor for the component; null if no factory is installed, as in a program without windows. Any thread.
std::shared_ptr<iview_v1> create_editor(std::weak_ptr<icomponent_v1> component);

} // namespace ov1
