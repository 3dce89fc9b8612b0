#include "standalone/jobs/media_problem.h"

namespace ov1
{

namespace
{

exit_code code_of(media::error_kind kind)
{
    switch (kind)
    {
    case media::error_kind::unreadable:
        return exit_code::unreadable;
    case media::error_kind::unsupported:
        return exit_code::unsupported;
    case media::error_kind::cannot_write:
        break;
    }
    return exit_code::cannot_write;
}

} // namespace

problem problem_of(const media::error& why, const std::string& subject)
{
    return {code_of(why.kind), subject, why.reason, why.hint};
}

} // namespace ov1
