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

/// The component for the length of the extraction, under a host of its own.
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

bool copy_file(const std::string& from, const std::string& to)
{
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary);
    return in && out && in.peek() != std::ifstream::traits_type::eof() && out << in.rdbuf() && out.flush();
}

/// What is wrong with the bundle's properties; null if nothing is.
const char* listing_failure(bundle_facts::listing plugin)
{
    switch (plugin)
    {
    case bundle_facts::listing::no_properties:
        return "Failed to retrieve bundle properties.";
    case bundle_facts::listing::no_list:
        return "Failed to retrieve ProPlugPlugInList Array from plist.";
    case bundle_facts::listing::no_entry:
        return "Failed to retrieve ProPlugPlugInList Dictionary from plist Array.";
    case bundle_facts::listing::no_uuid:
        return "Failed to retrieve uuid property from plist.";
    case bundle_facts::listing::complete:
        break;
    }
    return nullptr;
}

bool copy_thumbnails(const std::string& bundle_path, const std::string& folder, std::string& failure)
{
    const std::string resources = bundle_path + "/Contents/Resources/";
    if (!copy_file(resources + "fcpx_small.png", folder + "/small.png"))
    {
        failure = "Failed to copy small thumbnail image.";
        return false;
    }
    if (!copy_file(resources + "fcpx_large.png", folder + "/large.png"))
    {
        failure = "Failed to copy large thumbnail image.";
        return false;
    }
    return true;
}

bool write_document(icomponent_v1& component, const std::string& uuid, const std::string& folder)
{
    const std::string name = component.get_name();
    const auto declarations = declare_parameters(component);
    std::ofstream out(folder + '/' + name + ".moef", std::ios::binary);
    return out && out << template_document({name, uuid, name}, declarations) && out.flush();
}

} // namespace

bool write_template(const bundle_facts& bundle, const std::string& folder, std::string& failure)
{
    // False where the folder exists; one that can be used for nothing shows when the files are written.
    (void)iutils::get_instance().create_dir(folder);
    const offline_component component;
    if (component.get() == nullptr)
        failure = "Failed to create component instance.";
    else if (const char* wrong = listing_failure(bundle.plugin))
        failure = wrong;
    else if (component.get()->get_name().empty())
        failure = "Component name is empty.";
    else if (!bundle.path)
        failure = "Failed to retrieve plugin path.";
    else if (!copy_thumbnails(*bundle.path, folder, failure))
        return false;
    else if (!write_document(*component.get(), bundle.uuid, folder))
        failure = "Error creating target xml file.";
    else
        return true;
    return false;
}

} // namespace ov1
