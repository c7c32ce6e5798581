// Tokens of a text: how a list of values is written on one line. Converts nothing.
//
//   12, 34             two tokens
//   "a b", c           two tokens: a b and c
//   "say ""hi"""       one token; the doubled quotes stay doubled in it
//
// A token ends at a comma or white space, a quoted one at the next quote that is not doubled (or at the end
// of the text). White space and at most one comma separate tokens; a comma where a token begins belongs to
// it.
#pragma once

#include "orlo/export.h"

// The number of tokens; 0 for a text of white space.
ORLO_API int CountTokens(const char* text);

// Cuts the next token out of the text in place: its end is overwritten with a NUL. The cursor moves to the
// next token, and to null when nothing is left. A text of white space gives an empty token.
ORLO_API char* GetToken(char*& cursor);
