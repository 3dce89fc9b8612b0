#include "host/simulator/parameter_store.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ov1
{

namespace
{

constexpr std::uint32_t last_id = 9998; // the interface allows parameter ids 1..9998

/// Linear between a (weight 0) and b (weight 1).
double mixed(double a, double b, double weight) { return a + (b - a) * weight; }

store_value mixed(const store_value& a, const store_value& b, double weight)
{
    if (const auto* x = std::get_if<double>(&a))
        return mixed(*x, std::get<double>(b), weight);
    if (const auto* x = std::get_if<store_color>(&a))
    {
        const auto& y = std::get<store_color>(b);
        return store_color{mixed(x->red, y.red, weight), mixed(x->green, y.green, weight),
                           mixed(x->blue, y.blue, weight), mixed(x->alpha, y.alpha, weight)};
    }
    return a; // other types hold until the next keyframe
}

store_value value_at(const stored_parameter& p, CMTime time)
{
    if (p.keyframes.empty())
        return p.value;
    // The first keyframe after the time, and the one before it; outside all keyframes the nearest one holds.
    const auto next = p.keyframes.upper_bound(time);
    if (next == p.keyframes.begin())
        return next->second;
    const auto last = std::prev(next);
    if (next == p.keyframes.end())
        return last->second;
    // Doubles are precise enough for a weight. The order of keyframes is exact (time_order).
    const double from = CMTimeGetSeconds(last->first), to = CMTimeGetSeconds(next->first);
    return mixed(last->second, next->second, (CMTimeGetSeconds(time) - from) / (to - from));
}

/// Limits sliders and popups. Toggles, archives and colours have no bounds: a host's colours may exceed 0..1.
void limit(const stored_parameter& p, store_value& value)
{
    if (!(p.min < p.max))
        return;
    if (auto* number = std::get_if<double>(&value))
        *number = std::clamp(*number, p.min, p.max);
    else if (auto* whole = std::get_if<int>(&value))
        *whole = static_cast<int>(std::clamp<double>(*whole, p.min, p.max));
}

} // namespace

bool same_values(const stored_parameter& a, const stored_parameter& b)
{
    return a.value == b.value &&
           std::ranges::equal(a.keyframes, b.keyframes, [](const auto& x, const auto& y)
                              { return CMTimeCompare(x.first, y.first) == 0 && x.second == y.second; });
}

bool parameter_store::declare(std::uint32_t id, stored_parameter parameter)
{
    const std::scoped_lock guard(lock);
    if (id < 1 || id > last_id)
        return false;
    // Whatever the caller put there: a declared parameter starts with its default.
    parameter.value = parameter.default_value;
    return parameters.emplace(id, std::move(parameter)).second;
}

stored_parameter* parameter_store::find(std::uint32_t id, const store_value& value)
{
    // The variant's index is the type.
    const auto found = parameters.find(id);
    return found != parameters.end() && found->second.value.index() == value.index() ? &found->second : nullptr;
}

std::optional<store_value> parameter_store::get(std::uint32_t id, CMTime time) const
{
    const std::scoped_lock guard(lock);
    const auto found = parameters.find(id);
    if (found == parameters.end())
        return std::nullopt;
    return value_at(found->second, time);
}

bool parameter_store::set(std::uint32_t id, CMTime time, store_value value)
{
    const std::scoped_lock guard(lock);
    // Counted before any check: tests use the count to find superfluous calls.
    ++sets;
    stored_parameter* const p = find(id, value);
    if (p == nullptr)
        return false;
    begin_action();
    limit(*p, value);
    // A value that stays the same changes nothing for the user, so it makes no undo step.
    store_value& place = p->keyframes.empty() ? p->value : p->keyframes[time];
    changed_in_action |= place != value;
    place = std::move(value);
    end_action();
    return true;
}

bool parameter_store::set_keyframe(std::uint32_t id, CMTime time, store_value value)
{
    const std::scoped_lock guard(lock);
    stored_parameter* const p = find(id, value);
    if (p == nullptr)
        return false;
    begin_action();
    limit(*p, value);
    p->keyframes.insert_or_assign(time, std::move(value));
    changed_in_action = true;
    end_action();
    return true;
}

bool parameter_store::get_flags(std::uint32_t id, std::uint32_t& flags) const
{
    const std::scoped_lock guard(lock);
    const auto found = parameters.find(id);
    if (found == parameters.end())
        return false;
    flags = found->second.flags;
    return true;
}

bool parameter_store::set_flags(std::uint32_t id, std::uint32_t flags)
{
    const std::scoped_lock guard(lock);
    const auto found = parameters.find(id);
    if (found == parameters.end())
        return false;
    found->second.flags = flags;
    return true;
}

void parameter_store::begin_action()
{
    const std::scoped_lock guard(lock);
    // Only the outermost action remembers what was before it.
    if (open_actions++ > 0)
        return;
    before_action = parameters;
    changed_in_action = false;
}

void parameter_store::end_action()
{
    const std::scoped_lock guard(lock);
    // An end without a begin is the effect's mistake; it must not wrap the count.
    if (open_actions == 0 || --open_actions > 0 || !changed_in_action)
        return;
    undo_steps.push_back(std::move(before_action));
    // A new step starts another history.
    redo_steps.clear();
}

int parameter_store::get_open_actions() const
{
    const std::scoped_lock guard(lock);
    return open_actions;
}

bool parameter_store::undo() { return step(undo_steps, redo_steps); }
bool parameter_store::redo() { return step(redo_steps, undo_steps); }

bool parameter_store::step(std::vector<parameters_by_id>& from, std::vector<parameters_by_id>& to)
{
    const std::scoped_lock guard(lock);
    if (from.empty())
        return false;
    // Whole copies instead of differences: a document has a few dozen parameters.
    to.push_back(std::exchange(parameters, std::move(from.back())));
    from.pop_back();
    return true;
}

std::size_t parameter_store::get_undo_count() const
{
    const std::scoped_lock guard(lock);
    return undo_steps.size();
}

std::size_t parameter_store::get_set_count() const
{
    const std::scoped_lock guard(lock);
    return sets;
}

parameters_by_id parameter_store::copy() const
{
    const std::scoped_lock guard(lock);
    return parameters;
}

void parameter_store::restore(const parameters_by_id& saved)
{
    const std::scoped_lock guard(lock);
    // A document of another version may have parameters that this one lacks, or other ones under the same id.
    for (const auto& [id, from] : saved)
        if (stored_parameter* const to = find(id, from.value); to != nullptr && to->name == from.name)
        {
            to->value = from.value;
            to->keyframes = from.keyframes;
        }
}

} // namespace ov1
