// Reading numbers from texts. No window, no data exchange.
#pragma once

// The whole number that makes up the text. isUnsigned as strtoul, which takes a minus sign, else as strtol; a
// number beyond 32 bits gives the limit. False, with value unchanged: without a digit, or with more than the number.
bool ScanTextValue(const char* text, bool isUnsigned, long& value);

// Reads the real number that makes up the text, as the host reads it. Returns false, with value unchanged, if the host
// does not read the text to its end, or reads a number too large for a float.
bool ScanRealText(const char* text, float& value);

// Whether the text is not a number yet and becomes one with a further digit and what closes its brackets: "", "-", ".",
// "1e-", and where the host calculates "2*", "(1+".
bool IsBeginningOfReal(const char* text);
