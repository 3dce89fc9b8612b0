// The root of every interface, and the rule by which an object answers for one.
#pragma once

#include "shared/uid.h"

#include <string>

namespace ov1
{

class iobject
{
public:
    virtual ~iobject() = default;

    /// Asks for an interface by the exact name of the concrete class; names of its bases are not answered.
    /// On success stores the object in *out and returns true. Otherwise stores null (when out is given) and returns
    /// false. The pointer lives as long as the object.
    virtual bool query_interface(const std::string& name, iobject** out) = 0;
};

/// The answer of every class: compares the hash of the name with the class's own.
inline bool answer_query(uid ifc_id, iobject* self, const std::string& name, iobject** out)
{
    if (out == nullptr)
        return false;
    const bool known = make_uid(name) == ifc_id;
    *out = known ? self : nullptr;
    return known;
}

} // namespace ov1
