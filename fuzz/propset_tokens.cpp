// Values from text. The first two bytes of the input are the type.

#include <cstring>
#include <string>

#include "orlo/propset/property.h"
#include "orlo/propset/tokens.h"
#include "tests/propset/memory_stream.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    uint16_t type;
    std::memcpy(&type, data, sizeof type);
    std::string text(reinterpret_cast<const char*>(data + 2), size - 2);
    text.resize(std::strlen(text.c_str()));

    CProperty property;
    const bool isSet = property.Set(1, CString(text.c_str()), type);
    if (isSet && property.GetRawValue() != nullptr) {
        MemoryStream stream;
        if (!property.WriteToStream(&stream)) __builtin_trap();
        stream.Rewind();
        CProperty again;
        if (!again.ReadFromStream(&stream)) __builtin_trap();
    }

    const int count = CountTokens(text.c_str());
    int cut = 0;
    for (char* cursor = text.data(); cursor != nullptr; ++cut)
        GetToken(cursor);
    if (cut != (count == 0 ? 1 : count)) __builtin_trap();
    return 0;
}
