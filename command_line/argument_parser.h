// The arguments of one command: its options, its help, and a clear failure for each mistake.
#pragma once

#include "shared/result.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

/// Options are declared first and filled by parse(); the variables must outlive it. Names are written "-s,--set". An
/// option takes exactly one text; of several, the last one counts. The caller checks the texts.
class argument_parser
{
public:
    enum class outcome
    {
        run,  ///< all variables are filled
        help, ///< the user asked for the help
    };

    /// The command is written "veridial grade"; the examples end its help.
    argument_parser(const std::string& command, const std::string& summary, const std::string& examples);
    ~argument_parser();
    argument_parser(const argument_parser&) = delete;
    argument_parser& operator=(const argument_parser&) = delete;

    /// The heading in the help for the options declared after it.
    void group(const std::string& title);
    /// An option without a value: it sets the variable to true. Giving it twice is no mistake; a value, as in
    /// "--flag=x", is.
    void flag(const std::string& names, bool& value, const std::string& help);
    /// An option with one value. The placeholder stands for the value in the help. The variable stays empty where the
    /// option is not given.
    void text(const std::string& names, std::optional<std::string>& value, const std::string& placeholder,
              const std::string& help);
    /// An option that may be repeated; all its texts are kept, in order.
    void texts(const std::string& names, std::vector<std::string>& values, const std::string& placeholder,
               const std::string& help);
    /// The arguments that belong to no option, and everything after "--".
    void positionals(const std::string& placeholder, std::vector<std::string>& values, const std::string& help);

    /// Takes the arguments after the command's name. Called once.
    /// Fails (usage) at the first mistake; the subject is the argument as the user wrote it, the hint a similar option.
    result<outcome> parse(std::span<const std::string> arguments);

    /// All groups with their options, then the examples; ends with a line feed.
    std::string help_text() const;

private:
    // Hides the library that parses, so that only one source file compiles its headers.
    struct implementation;
    std::unique_ptr<implementation> impl;
};

} // namespace ov1
