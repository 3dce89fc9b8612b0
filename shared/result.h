// The return type of operations that may fail: the value, or the failure.
//
//   result<> save(...);                      if (const auto saved = save(...); !saved)
//   result<table> read(...);                     return saved.error();
#pragma once

#include "shared/failure.h"

#include <optional>
#include <utility>
#include <variant>

namespace ov1
{

/// A value or a failure, constructed from either. Ignoring it is a compiler warning.
template <typename T = void>
class [[nodiscard]] result
{
public:
    /// Implicit, so that a function can return a value or a failure as it is.
    result(T value)
        : content(std::in_place_index<0>, std::move(value))
    {
    }

    result(failure why)
        : content(std::in_place_index<1>, std::move(why))
    {
    }

    /// True if there is a value.
    explicit operator bool() const { return content.index() == 0; }

    /// Only if there is a value.
    T& operator*() & { return *std::get_if<0>(&content); }
    const T& operator*() const& { return *std::get_if<0>(&content); }
    T&& operator*() && { return std::move(*std::get_if<0>(&content)); }
    T* operator->() { return std::get_if<0>(&content); }
    const T* operator->() const { return std::get_if<0>(&content); }

    /// Only if there is no value.
    failure& error() & { return *std::get_if<1>(&content); }
    const failure& error() const& { return *std::get_if<1>(&content); }
    failure&& error() && { return std::move(*std::get_if<1>(&content)); }

private:
    std::variant<T, failure> content;
};

/// Success, or a failure.
template <>
class [[nodiscard]] result<void>
{
public:
    /// Success.
    result() = default;

    result(failure why)
        : problem(std::move(why))
    {
    }

    /// True after success.
    explicit operator bool() const { return !problem.has_value(); }

    /// Only after a failure.
    failure& error() & { return *problem; }
    const failure& error() const& { return *problem; }
    failure&& error() && { return std::move(*problem); }

private:
    std::optional<failure> problem;
};

/// The same failure with a subject, for callers that know how the user named it.
inline failure about(std::string subject, failure why)
{
    why.subject = std::move(subject);
    return why;
}

} // namespace ov1
