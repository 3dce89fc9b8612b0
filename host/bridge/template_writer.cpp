#include "host/bridge/template_writer.h"

#include "framework/create_ccomponent.h"
#include "host/bridge/fcpx_extractor_host.h"
#include "host/bridge/template_document.h"
#include "platform/iutils.h"

#include <fstream>

namespace ov1
{

namespace
{

/// A component with a minimal host, initialised and terminated here.
class offline_component
{
public:
    offline_component()
    {
        if (component)
            component->initialize(std::make_shared<fcpx_extractor_host>());
    }
    ~offline_component()
    {
        if (component)
            component->terminate();
    }
    offline_component(const offline_component&) = delete;
    offline_component& operator=(const offline_component&) = delete;

    icomponent_v1* get() const { return component.get(); }

private:
    const std::shared_ptr<icomponent_v1> component = create_ccomponent();
};

/// Flushed here, because a destructor would hide that the disk is full.
bool copy_file(const std::string& from, const std::string& to)
{
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary);
    // An empty file is no picture, so it is a failure too.
    return in && out && in.peek() != std::ifstream::traits_type::eof() && out << in.rdbuf() && out.flush();
}

/// The reasons are whole sentences, unlike those of other failures: they are printed as they are.
failure not_written(const char* reason) { return {failure_kind::cannot_write, {}, reason, {}}; }

result<> check_listing(bundle_facts::listing plugin)
{
    switch (plugin)
    {
    case bundle_facts::listing::no_properties:
        return not_written("Failed to retrieve bundle properties.");
    case bundle_facts::listing::no_list:
        return not_written("Failed to retrieve ProPlugPlugInList Array from plist.");
    case bundle_facts::listing::no_entry:
        return not_written("Failed to retrieve ProPlugPlugInList Dictionary from plist Array.");
    case bundle_facts::listing::no_uuid:
        return not_written("Failed to retrieve uuid property from plist.");
    case bundle_facts::listing::complete:
        break;
    }
    return {};
}

result<> copy_thumbnails(const std::string& bundle_path, const std::string& folder)
{
    const std::string resources = bundle_path + "/Contents/Resources/";
    if (!copy_file(resources + "fcpx_small.png", folder + "/small.png"))
        return not_written("Failed to copy small thumbnail image.");
    if (!copy_file(resources + "fcpx_large.png", folder + "/large.png"))
        return not_written("Failed to copy large thumbnail image.");
    return {};
}

/// Named after the component, which is also the effect's name in the document.
bool write_document(icomponent_v1& component, const std::string& uuid, const std::string& folder)
{
    const std::string name = component.get_name();
    const auto declarations = declare_parameters(component);
    std::ofstream out(folder + '/' + name + ".moef", std::ios::binary);
    return out && out << template_document({name, uuid, name}, declarations) && out.flush();
}

} // namespace

result<> write_template(const bundle_facts& bundle, const std::string& folder)
{
    // False when the folder exists. A folder that could not be made shows when the files are written.
    (void)iutils::get_instance().create_dir(folder);
    const offline_component component;
    // The order of the checks is fixed: the first reason that applies is printed, and build scripts compare it.
    if (component.get() == nullptr)
        return not_written("Failed to create component instance.");
    if (const auto listed = check_listing(bundle.plugin); !listed)
        return listed;
    if (component.get()->get_name().empty())
        return not_written("Component name is empty.");
    if (!bundle.path)
        return not_written("Failed to retrieve plugin path.");
    if (const auto copied = copy_thumbnails(*bundle.path, folder); !copied)
        return copied;
    if (!write_document(*component.get(), bundle.uuid, folder))
        return not_written("Error creating target xml file.");
    return {};
}

} // namespace ov1
