// Tokens: the syntax for a list of values on one line.
//
//   12, 34             two tokens
//   "a b", c           two tokens: a b and c
//   "say ""hi"""       one token; the doubled quotes remain doubled
//
// A token ends at a comma or white space; a quoted token ends at the next quote that is not doubled, or at the end of
// the text. White space and at most one comma separate tokens. A comma at the start of a token is part of it.
#pragma once

#include "orlo/export.h"

// Returns the number of tokens; 0 if the text is only white space.
ORLO_API int CountTokens(const char* text);

// Extracts the next token in place by replacing its end with a NUL. Sets the cursor to the next token, or to null if
// there is none. If the text is only white space, returns an empty token.
ORLO_API char* GetToken(char*& cursor);
