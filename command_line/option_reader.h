// Values of options, read from their texts.
#pragma once

#include "shared/result.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ov1
{

/// Reads the options of one command, and collects what is wrong with them.
/// A command reports everything that is wrong with its options in one run, so that the user need not find the mistakes
/// one by one.
class option_reader
{
public:
    /// Converts the text with a function that returns a result, such as read_number. Leaves the value unchanged where
    /// the option is not given or its text is wrong. The option is the subject of the failure.
    template <typename T, typename Read>
    void read(const char* option, const std::optional<std::string>& text, T& value, const Read& read_text)
    {
        if (!text)
            return;
        if (auto found = read_text(*text))
            value = *std::move(found);
        else
            refuse(about(option, std::move(found).error()));
    }

    void refuse(failure why) { failures.push_back(std::move(why)); }
    /// A mistake in the command line itself.
    void refuse(const char* subject, const char* reason, const char* hint = "")
    {
        refuse({failure_kind::usage, subject, reason, hint});
    }

    /// Everything that was refused, in this order.
    std::vector<failure> take_failures() { return std::move(failures); }

private:
    std::vector<failure> failures;
};

} // namespace ov1
