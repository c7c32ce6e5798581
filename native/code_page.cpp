// Code pages on this machine, by iconv.

#include "orlo/propset/code_page.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <map>
#include <memory>

namespace orlo {

namespace {

std::string NameOf(uint16_t codePage) {
    switch (codePage) {
    case 0:
        return "CP1252";
    case kCodePageUtf16:
        return "UTF-16LE";
    case kCodePageUtf8:
        return "UTF-8";
    case 10000:
        return "MACINTOSH";
    default:
        return "CP" + std::to_string(codePage);
    }
}

// One conversion and its descriptor.
class Converter {
public:
    Converter(const std::string& to, const std::string& from)
        : handle_(::iconv_open(to.c_str(), from.c_str())) {}
    ~Converter() {
        if (IsOpen()) ::iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    std::optional<std::string> Convert(std::string_view text) {
        if (!IsOpen()) return std::nullopt;
        ::iconv(handle_, nullptr, nullptr, nullptr, nullptr); // forgets a text that broke off
        std::string out;
        auto* in = const_cast<char*>(text.data()); // iconv takes no const and writes nothing
        size_t inLeft = text.size();
        while (inLeft > 0)
            if (!Step(&in, &inLeft, out)) return std::nullopt;
        if (!Step(nullptr, nullptr, out)) return std::nullopt; // what was held back for an accent to follow
        return out;
    }

private:
    bool Step(char** in, size_t* inLeft, std::string& out) {
        std::array<char, 512> part;
        char* end = part.data();
        size_t room = part.size();
        const size_t result = ::iconv(handle_, in, inLeft, &end, &room);
        out.append(part.data(), end);
        return result != static_cast<size_t>(-1) || errno == E2BIG;
    }
    bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
    iconv_t handle_;
};

// Opening one takes longer than most texts.
Converter& ConverterOf(const std::string& to, const std::string& from) {
    thread_local std::map<std::pair<std::string, std::string>, std::unique_ptr<Converter>> converters;
    std::unique_ptr<Converter>& converter = converters[{to, from}];
    if (!converter) converter = std::make_unique<Converter>(to, from);
    return *converter;
}

} // namespace

std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage) {
    if (IsPlainText(text, codePage)) return std::string(text);
    if (codePage == kCodePageUtf16) text = text.substr(0, text.size() / 2 * 2);
    return ConverterOf("UTF-8", NameOf(codePage)).Convert(text);
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage) {
    if (IsPlainText(utf8, codePage)) return std::string(utf8);
    return ConverterOf(NameOf(codePage), "UTF-8").Convert(utf8);
}

} // namespace orlo
