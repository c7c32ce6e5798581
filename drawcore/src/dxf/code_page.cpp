// Converts code pages with MultiByteToWideChar on Windows and iconv elsewhere.

#include "drawcore/src/dxf/code_page.h"

#include <cctype>
#include <charconv>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace dxf {

namespace {

constexpr int kWesternEuropean = 1252;

struct NamedPage {
    std::string_view name;
    int number;
};
// Names without a number; ANSI_nnnn and DOSnnn are parsed.
constexpr NamedPage kNamedPages[] = {
    {"ascii", 1252},      {"iso8859-1", 28591}, {"iso8859-2", 28592}, {"iso8859-5", 28595},
    {"iso8859-7", 28597}, {"gb2312", 936},      {"big5", 950},        {"ksc5601", 949},
    {"johab", 1361},      {"mac-roman", 10000}, {"utf-8", 65001},     {"utf8", 65001},
};

int PageNumber(std::string_view given) {
    std::string name;
    for (char c : given)
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const NamedPage& page : kNamedPages)
        if (page.name == name) return page.number;
    const size_t digits = name.find_first_of("0123456789");
    int number = 0;
    if (digits == name.npos || (name.compare(0, 3, "dos") != 0 && name.compare(0, 4, "ansi") != 0))
        return kWesternEuropean;
    std::from_chars(name.data() + digits, name.data() + name.size(), number);
    return number > 0 ? number : kWesternEuropean;
}

} // namespace

#ifdef _WIN32

struct CodePage::Converter {
    explicit Converter(int number)
        : page(::IsValidCodePage(static_cast<UINT>(number)) ? static_cast<UINT>(number) : kWesternEuropean) {}
    UINT page;

    std::string Convert(std::string_view bytes) const {
        const int length = static_cast<int>(bytes.size());
        std::wstring wide(bytes.size(), L'\0'); // a byte becomes at most one unit
        const int units = ::MultiByteToWideChar(page, 0, bytes.data(), length, wide.data(), length);
        std::string utf8(static_cast<size_t>(units) * 3, '\0');
        const int size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(),
                                               static_cast<int>(utf8.size()), nullptr, nullptr);
        utf8.resize(static_cast<size_t>(size));
        return utf8;
    }

    std::optional<std::string> ConvertBack(std::string_view text) const {
        const int length = static_cast<int>(text.size());
        std::wstring wide(text.size(), L'\0');
        const int units = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length);
        std::string bytes(text.size() * 2, '\0');
        const int size = ::WideCharToMultiByte(page, page == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS, wide.data(), units,
                                               bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
        bytes.resize(static_cast<size_t>(size));
        // Some code pages replace missing characters, whatever the flags, so the result is converted back and compared.
        if (Convert(bytes) != text) return std::nullopt;
        return bytes;
    }
};

#else

struct CodePage::Converter {
    explicit Converter(int number) : name(NameOf(number)), handle(Open(name)) {}
    ~Converter() { ::iconv_close(handle); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    std::string name;
    iconv_t handle;

    static std::string NameOf(int number) {
        std::string name = "CP" + std::to_string(number);
        if (number == 65001) name = "UTF-8";
        if (number == 10000) name = "MACINTOSH";
        if (number == 1361) name = "JOHAB";
        if (number > 28590 && number <= 28605) name = "ISO-8859-" + std::to_string(number - 28590);
        return name;
    }

    // Uses Windows 1252 if the system does not know the code page.
    static iconv_t Open(std::string& name) {
        const iconv_t opened = ::iconv_open("UTF-8", name.c_str());
        if (opened != reinterpret_cast<iconv_t>(-1)) return opened;
        name = "CP1252";
        return ::iconv_open("UTF-8", name.c_str());
    }

    std::optional<std::string> ConvertBack(std::string_view text) const {
        const std::unique_ptr<void, int (*)(iconv_t)> back(::iconv_open(name.c_str(), "UTF-8"), ::iconv_close);
        std::string bytes(text.size() * 2, '\0');
        char* in = const_cast<char*>(text.data());
        size_t left = text.size();
        char* out = bytes.data();
        size_t space = bytes.size();
        if (::iconv(back.get(), &in, &left, &out, &space) == static_cast<size_t>(-1)) return std::nullopt;
        bytes.resize(bytes.size() - space);
        return bytes;
    }

    std::string Convert(std::string_view bytes) const {
        ::iconv(handle, nullptr, nullptr, nullptr, nullptr);
        std::string utf8(bytes.size() * 3 + 4, '\0');
        char* in = const_cast<char*>(bytes.data()); // iconv does not write to its input
        size_t left = bytes.size();
        char* out = utf8.data();
        size_t space = utf8.size();
        while (left != 0 && ::iconv(handle, &in, &left, &out, &space) == static_cast<size_t>(-1)) {
            for (char c : std::string_view("\xEF\xBF\xBD"))
                *out++ = c, --space;
            ++in, --left;
        }
        utf8.resize(utf8.size() - space);
        return utf8;
    }
};

#endif

CodePage::CodePage(std::string_view name) : CodePage(PageNumber(name)) {}
CodePage::CodePage(int number) : converter_(std::make_unique<Converter>(number)) {}
CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

std::optional<std::string> CodePage::FromUtf8(std::string_view text) const {
    return text.empty() ? std::string() : converter_->ConvertBack(text);
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
    return bytes.empty() ? std::string() : converter_->Convert(bytes);
}

} // namespace dxf
