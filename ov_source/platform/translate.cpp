#include "platform/iutils.h"

namespace ov1
{

namespace
{

/// Index of the brace that closes the piece opened at `open`, or npos.
std::size_t closing_brace(std::string_view text, std::size_t open)
{
    std::size_t depth = 0;
    for (std::size_t i = open + 1; i < text.size(); ++i)
    {
        if (text[i] == '{')
            ++depth;
        else if (text[i] == '}' && depth-- == 0)
            return i;
    }
    return std::string_view::npos;
}

/// Whether the brace is followed by two characters and a colon, as in "{en:".
bool opens_piece(std::string_view text, std::size_t brace) { return brace + 3 < text.size() && text[brace + 3] == ':'; }

} // namespace

std::string iutils::translate(language_id language, std::string_view text)
{
    const std::string_view wanted = language == language_id::german ? "de" : "en";
    std::string result;
    std::size_t copied = 0;
    for (std::size_t open = text.find('{'); open != std::string_view::npos;)
    {
        if (!opens_piece(text, open))
        {
            // An ordinary brace belongs to the text.
            open = text.find('{', open + 1);
            continue;
        }
        const std::size_t close = closing_brace(text, open);
        if (close == std::string_view::npos)
            // A piece without its closing brace is kept as text.
            break;
        result += text.substr(copied, open - copied);
        // A brace inside the code, as in "{a}:", ends the piece before its content; no language has such a code.
        if (text.substr(open + 1, 2) == wanted)
            result += text.substr(open + 4, close - open - 4);
        copied = close + 1;
        open = text.find('{', copied);
    }
    return result += text.substr(copied);
}

} // namespace ov1
