// The choice of scopes as a text, for the settings.
#pragma once

#include "editor/scopes/scope_pictures.h"

#include <string>

namespace ov1
{

/// The names of the chosen scopes, and "skin" for the skin line, separated by blanks: "waveform vectorscope skin".
std::string scope_choice_text(const scope_choice& choice);

/// Reads such a text. Unknown words are ignored; a text without a scope gives the default choice.
scope_choice scope_choice_from_text(const std::string& text);

} // namespace ov1
