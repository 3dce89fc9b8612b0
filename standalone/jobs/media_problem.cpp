#include "standalone/jobs/media_problem.h"

namespace ov1
{

namespace
{

exit_code code_of(failure_kind kind)
{
    switch (kind)
    {
    case failure_kind::unreadable:
        return exit_code::unreadable;
    case failure_kind::unsupported:
        return exit_code::unsupported;
    default:
        return exit_code::cannot_write;
    }
}

} // namespace

problem problem_of(const failure& why, const std::string& subject)
{
    return {code_of(why.kind), subject, why.reason, why.hint};
}

} // namespace ov1
