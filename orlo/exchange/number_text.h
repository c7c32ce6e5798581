// Reading numbers from texts. No window, no data exchange.
#pragma once

// The whole number that makes up the text. isUnsigned as strtoul, which takes a minus sign, else as strtol; a
// number beyond 32 bits gives the limit. False, with value unchanged: without a digit, or with more than the number.
bool ScanTextValue(const char* text, bool isUnsigned, long& value);

// The real number that makes up the text, as the host reads it. False, with value unchanged: not a number that
// begins with a digit or is not zero, with more than the number, or too large for a float.
bool ScanRealText(const char* text, float& value);

// Whether the text is not a number yet and becomes one with a further digit and what closes its brackets: "", "-", ".", "1e-",
// and where the host calculates "2*", "(1+".
bool IsBeginningOfReal(const char* text);
