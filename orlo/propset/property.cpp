// The value block of a property: setting, measuring, writing and reading it.

#include "orlo/propset/property.h"

#include <cstring>

#include "orlo/host/memory.h"
#include "orlo/propset/image_writer.h"
#include "orlo/propset/property_index.h"
#include "orlo/propset/rc_file.h"
#include "orlo/propset/stored_text.h"
#include "orlo/propset/stream_reader.h"
#include "orlo/propset/value_walk.h"

namespace {

using orlo::BaseType;
using orlo::Form;
using orlo::FormOf;
using orlo::IsVector;
using orlo::PaddingOf;
using orlo::TypeForm;

// The stored form of a property.
struct Stored {
    DWORD type;
    const BYTE* bytes;
    size_t size;
};

// Returns an empty value in the form of the type, or VT_EMPTY for types of fixed size, which have no empty value.
Stored EmptyValue(DWORD type) {
    static const BYTE kNoElements[4] = {};
    static const BYTE kEmptyText[5] = {1};
    static const BYTE kEmptyWideText[6] = {1};
    if (IsVector(type)) return {type, kNoElements, sizeof kNoElements};
    const TypeForm& form = FormOf(type);
    if (form.form == Form::fixed) return {VT_EMPTY, nullptr, 0};
    if (form.form == Form::chars) return {type, kEmptyWideText, sizeof kEmptyWideText};
    if (form.isText) return {type, kEmptyText, sizeof kEmptyText};
    return {type, kNoElements, sizeof kNoElements};
}

size_t PlainTextSize(const void* text, Form form) {
    if (form == Form::bytes) return std::strlen(static_cast<const char*>(text)) + 1;
    const auto* chars = static_cast<const uint16_t*>(text);
    size_t length = 0;
    while (chars[length] != 0)
        ++length;
    return (length + 1) * 2;
}

// Keeps the old block of a property until the new value is complete, because the new one may be copied from it.
class OldBlock {
public:
    explicit OldBlock(void*& block) : block_(block) { block = nullptr; }
    ~OldBlock() { ::DrawCoreDispose(block_); }
    OldBlock(const OldBlock&) = delete;
    OldBlock& operator=(const OldBlock&) = delete;

private:
    void* block_;
};

// Returns nothing if the type has no stored form or the block is too short for it.
std::optional<Stored> StoredForm(DWORD type, const void* block, DWORD blockSize) {
    if (!FormOf(BaseType(type)).inProperty) return std::nullopt;
    if (block == nullptr) return EmptyValue(type);
    const auto* bytes = static_cast<const BYTE*>(block);
    const std::optional<size_t> size = orlo::StoredSize(type, bytes, blockSize);
    if (!size) return std::nullopt;
    return Stored{type, bytes, *size};
}

// Returns the number of bytes of the elements at the reader's position, without moving it, or nothing if an element is
// truncated.
std::optional<ULONGLONG> MeasureElements(orlo::StreamReader& reader, const TypeForm& form, DWORD count) {
    if (!form.inProperty) return std::nullopt;
    if (form.form == Form::fixed) return ULONGLONG{form.size} * count;
    if (count > reader.Left() / 4 || !reader.Spend(ULONGLONG{4} * count)) return std::nullopt;
    const ULONGLONG begin = reader.Position();
    ULONGLONG total = 0;
    for (; count > 0; --count) {
        uint32_t prefix;
        reader.SeekTo(begin + total);
        if (!reader.Read32(prefix)) return std::nullopt;
        total += orlo::CountedSize(form.form, prefix);
    }
    reader.SeekTo(begin);
    return total;
}

} // namespace

CProperty::CProperty() : m_dwID(0), m_dwType(VT_EMPTY), m_pValue(nullptr), m_cbValue(0) {}

CProperty::CProperty(DWORD dwID, void* const pValue, DWORD dwType)
    : m_dwID(dwID), m_dwType(dwType), m_pValue(nullptr), m_cbValue(0) {
    Set(pValue);
}

CProperty::~CProperty() {
    FreeValue();
}

int CProperty::Set(DWORD dwID, void* const pValue, DWORD dwType) {
    SetID(dwID);
    return Set(pValue, dwType);
}

int CProperty::Set(void* const pValue, DWORD dwType) {
    m_dwType = dwType;
    return Set(pValue);
}

int CProperty::Set(void* const pValue) {
    const OldBlock old(m_pValue);
    m_cbValue = 0;
    if (pValue == nullptr || m_dwType == VT_EMPTY) return 1;

    const TypeForm& form = FormOf(BaseType(m_dwType));
    if (!form.inProperty) return 0;
    const auto* source = static_cast<const BYTE*>(pValue);
    const bool plainText = form.isText && !IsVector(m_dwType);
    const size_t textSize = plainText ? PlainTextSize(pValue, form.form) : 0;
    const std::optional<size_t> size = plainText ? 4 + textSize : orlo::StoredSize(m_dwType, source, UINT32_MAX);
    if (!size || *size > UINT32_MAX) return 0;
    auto* block = static_cast<BYTE*>(AllocValue(static_cast<DWORD>(*size)));
    if (block == nullptr) return *size == 0;
    if (plainText) {
        orlo::PutLittleEndian<uint32_t>(block, static_cast<DWORD>(form.form == Form::chars ? textSize / 2 : textSize));
        std::memcpy(block + 4, source, textSize);
    } else {
        std::memcpy(block, source, *size);
    }
    return 1;
}

int CProperty::Set(DWORD dwID, const CString& strValue, DWORD dwType) {
    SetID(dwID);
    m_dwType = dwType;
    return Set(strValue);
}

int CProperty::Set(const CString& strValue) {
    const OldBlock old(m_pValue);
    m_cbValue = 0;
    if (strValue.IsEmpty() || m_dwType == VT_EMPTY) return 1;

    const std::optional<std::vector<BYTE>> bytes = orlo::StoredFromText(strValue, m_dwType);
    if (!bytes || bytes->size() > UINT32_MAX) return 0;
    void* block = AllocValue(static_cast<DWORD>(bytes->size()));
    if (block == nullptr) return 0;
    std::memcpy(block, bytes->data(), bytes->size());
    return 1;
}

void* CProperty::Get(DWORD* pcb) {
    const TypeForm& form = FormOf(m_dwType); // a vector's type is not in the table
    if (!form.inProperty) return nullptr;
    auto* block = static_cast<BYTE*>(m_pValue);
    const std::optional<size_t> size = orlo::StoredSize(m_dwType, block, m_cbValue);
    if (!size || block == nullptr) {
        if (pcb != nullptr) *pcb = 0;
        return nullptr;
    }
    const bool counted = form.form != Form::fixed;
    if (pcb != nullptr) *pcb = static_cast<DWORD>(counted ? *size - 4 : *size);
    const bool withCount = m_dwType == VT_BLOB || m_dwType == VT_BLOB_OBJECT || m_dwType == 75;
    return counted && !withCount ? block + 4 : block;
}

void* CProperty::Get() {
    return Get(nullptr);
}
void* CProperty::GetRawValue() {
    return m_pValue;
}
DWORD CProperty::GetType() {
    return m_dwType;
}
void CProperty::SetType(DWORD dwType) {
    m_dwType = dwType;
}
DWORD CProperty::GetID() {
    return m_dwID;
}

void CProperty::SetID(DWORD dwPropID) {
    if (dwPropID == m_dwID) return;
    m_dwID = dwPropID;
    orlo::InvalidatePropertyIndexes();
}

int CProperty::WriteToStream(IStream* pStream) {
    return orlo::ImageWriter::WriteTo(pStream, [this](orlo::ImageWriter& image) { return AppendTo(image); });
}

int CProperty::AppendTo(orlo::ImageWriter& image) const {
    const std::optional<Stored> stored = StoredForm(m_dwType, m_pValue, m_cbValue);
    if (!stored) return 0;
    image.Put32(stored->type);
    image.Put(stored->bytes, stored->size);
    image.PutZeros(PaddingOf(stored->size));
    return 1;
}

int CProperty::ReadFromStream(IStream* pStream) {
    orlo::StreamReader reader(pStream);
    const int result = ReadFrom(reader);
    reader.SynchronizePosition();
    return result;
}

int CProperty::ReadFrom(orlo::StreamReader& reader) {
    FreeValue();
    uint32_t type;
    if (!reader.Read32(type)) return 0;
    m_dwType = type;
    uint32_t count = 1;
    if (IsVector(type) && !reader.Read32(count)) return 0;
    const std::optional<ULONGLONG> elements = MeasureElements(reader, FormOf(BaseType(type)), count);
    if (!elements) return 0;

    const size_t head = IsVector(type) ? 4 : 0;
    const ULONGLONG total = head + *elements;
    if (total == 0) {
        m_dwType = VT_EMPTY;
        return 1;
    }
    if (total > UINT32_MAX || !reader.Spend(total)) return 0;
    auto* block = static_cast<BYTE*>(AllocValue(static_cast<DWORD>(total)));
    if (block == nullptr) return 0;
    if (head != 0) orlo::PutLittleEndian<uint32_t>(block, count);
    const auto expected = static_cast<size_t>(*elements);
    const size_t readSize = reader.Read(block + head, expected);
    std::memset(block + head + readSize, 0, expected - readSize);
    return readSize == expected;
}

DWORD CProperty::WriteToRC(CRCFile* pRC) {
    pRC->NewLine();
    pRC->Format();
    CString comment;
    comment.Format("// [ 0x%x ]\n    ", static_cast<unsigned>(m_dwID));
    pRC->CStdioFile::WriteString(comment);
    pRC->m_bNeedComma = 0;
    pRC->m_nColumn = 4;
    const std::optional<Stored> stored = StoredForm(m_dwType, m_pValue, m_cbValue);
    pRC->WriteDWord(stored ? stored->type : m_dwType);
    if (!stored) return 0;

    auto* bytes = const_cast<BYTE*>(stored->bytes); // the script writer takes a non-const pointer but does not write to
                                                    // it
    size_t left = stored->size;
    if (IsVector(stored->type)) {
        pRC->WriteDWord(orlo::LittleEndian<uint32_t>(bytes));
        bytes += 4;
        left -= 4;
    }
    const DWORD base = BaseType(stored->type);
    if (base == VT_BSTR || base == VT_LPSTR) {
        for (size_t size; left > 0; bytes += size, left -= size) {
            const DWORD length = orlo::LittleEndian<uint32_t>(bytes);
            size = 4 + length;
            pRC->WriteDWord(length);
            pRC->WriteCString(reinterpret_cast<const char*>(bytes + 4), length);
        }
    } else if (left > 0) {
        pRC->WriteBytes(bytes, static_cast<int>(left));
    }
    for (size_t pad = PaddingOf(stored->size); pad > 0; --pad)
        pRC->WriteNULByte();
    return static_cast<DWORD>(4 + stored->size + PaddingOf(stored->size));
}

void* CProperty::AllocValue(DWORD cb) {
    if (cb == 0) return nullptr;
    m_pValue = ::DrawCoreNew(cb);
    m_cbValue = m_pValue != nullptr ? cb : 0;
    return m_pValue;
}

void CProperty::FreeValue() {
    ::DrawCoreDispose(m_pValue);
    m_pValue = nullptr;
    m_cbValue = 0;
}
