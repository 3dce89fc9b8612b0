// The choice of scopes as a text, for the settings.
#pragma once

#include "editor/scopes/scope_pictures.h"

#include <string>

namespace ov1
{

/// The chosen scopes' names and "skin", apart by blanks: "waveform vectorscope skin".
std::string scope_choice_text(const scope_choice& choice);

/// Unknown words are passed over; a text that names no scope gives the usual choice.
scope_choice scope_choice_from_text(const std::string& text);

} // namespace ov1
