// The root of all interfaces, and how an object is asked for one.
#pragma once

#include "shared/uid.h"

#include <string>

namespace ov1
{

/// Objects may be destroyed through this class.
class iobject
{
public:
    virtual ~iobject() = default;

    /// Asks for an interface by the exact name of the concrete class; names of base classes are not accepted.
    /// On success stores the object in *out and returns true; otherwise stores null, if out is not null, and returns
    /// false. The pointer is valid as long as the object.
    virtual bool query_interface(const std::string& name, iobject** out) = 0;
};

/// The implementation for every class: compares the hash of the name with the class's own.
inline bool answer_query(uid ifc_id, iobject* self, const std::string& name, iobject** out)
{
    if (out == nullptr)
        return false;
    const bool known = make_uid(name) == ifc_id;
    *out = known ? self : nullptr;
    return known;
}

} // namespace ov1
