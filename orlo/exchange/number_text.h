// Parses numbers, without windows or data exchange.
#pragma once

// Parses an integer that makes up the whole text: as strtoul, which accepts a minus sign, if isUnsigned, else as
// strtol. Numbers beyond 32 bits become the limit. Returns false, with value unchanged, if there is no digit or any
// text beside the number.
bool ScanTextValue(const char* text, bool isUnsigned, long& value);

// Parse a real number that makes up the whole text, using the host's parser. Return false, with value unchanged, if the
// host does not parse the text completely or the number is too large for the type.
bool ScanNumber(const char* text, double& value);
bool ScanRealText(const char* text, float& value);

// Returns whether the text is not a number but becomes one with another digit and closing brackets: "", "-", ".",
// "1e-", and if the host supports calculations also "2*", "(1+".
bool IsBeginningOfReal(const char* text);
