// The arguments of one command: what it takes, its help, and one plain line for each mistake.
#pragma once

#include "shared/result.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

/// Options are declared first and filled by parse(); what they fill must outlive it. Names are "-s,--set". An option
/// takes exactly one text; given again, the last one holds. Texts are checked by who uses them.
class argument_parser
{
public:
    enum class outcome
    {
        run,  ///< everything is filled
        help, ///< the help was asked for
    };

    /// The command is "veridial grade"; the examples stand at the end of its help.
    argument_parser(const std::string& command, const std::string& summary, const std::string& examples);
    ~argument_parser();
    argument_parser(const argument_parser&) = delete;
    argument_parser& operator=(const argument_parser&) = delete;

    /// The heading in the help for what is declared from now on.
    void group(const std::string& title);
    void flag(const std::string& names, bool& value, const std::string& help);
    void text(const std::string& names, std::optional<std::string>& value, const std::string& placeholder,
              const std::string& help);
    /// An option that is collected each time it is given.
    void texts(const std::string& names, std::vector<std::string>& values, const std::string& placeholder,
               const std::string& help);
    /// What stands without an option, and everything behind "--".
    void positionals(const std::string& placeholder, std::vector<std::string>& values, const std::string& help);

    /// Arguments behind the command's name. Called once.
    result<outcome> parse(std::span<const std::string> arguments);

    std::string help_text() const;

private:
    struct implementation;
    std::unique_ptr<implementation> impl;
};

} // namespace ov1
