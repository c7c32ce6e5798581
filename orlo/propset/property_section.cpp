// Finds, writes and reads the properties and names of a section.

#include "orlo/propset/property_section.h"

#include <iterator>
#include <new>
#include <vector>

#include "orlo/propset/code_page.h"
#include "orlo/propset/dictionary_names.h"
#include "orlo/propset/image_writer.h"
#include "orlo/propset/property_index.h"
#include "orlo/propset/rc_file.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/stream_reader.h"
#include "orlo/propset/value_form.h"

namespace {

constexpr size_t kUsualPropertySize = 40; // including its table entry; most names are shorter

void* ToMapped(DWORD id) {
    return reinterpret_cast<void*>(static_cast<uintptr_t>(id));
}
DWORD ToId(void* mapped) {
    return static_cast<DWORD>(reinterpret_cast<uintptr_t>(mapped));
}

CString LowerCase(const char* name) {
    CString lower(name);
    lower.MakeLower();
    return lower;
}

// Returns an empty name if the system's code page cannot represent it.
CString NameFromWide(const std::string& bytes) {
    const std::optional<std::string> utf8 = orlo::CodePageToUtf8(bytes, orlo::kCodePageUtf16);
    const std::optional<std::string> text = utf8 ? orlo::Utf8ToCodePage(*utf8, 0) : std::nullopt;
    return CString(text ? text->c_str() : "");
}

CProperty* NextProperty(const CObList& list, POSITION& position) {
    return static_cast<CProperty*>(list.GetNext(position));
}

} // namespace

CPropertySection::CPropertySection() : CPropertySection(GUID{}) {}

CPropertySection::CPropertySection(GUID FormatID)
    : m_FormatID(FormatID), m_dwSize(0), m_dwPropertyCount(0), m_PropertyList(10), m_NameMap(10),
      m_bListExposed(false) {}

CPropertySection::~CPropertySection() {
    RemoveAll();
}

GUID CPropertySection::GetFormatID() {
    return m_FormatID;
}
void CPropertySection::SetFormatID(GUID FormatID) {
    m_FormatID = FormatID;
}

int CPropertySection::Set(DWORD dwPropID, void* pValue, DWORD dwType) {
    if (CProperty* existing = GetProperty(dwPropID)) {
        existing->Set(dwPropID, pValue, dwType);
        return 1;
    }
    auto* property = new (std::nothrow) CProperty(dwPropID, pValue, dwType);
    if (property == nullptr) return 0;
    AddProperty(property);
    return 1;
}

int CPropertySection::Set(DWORD dwPropID, void* pValue) {
    CProperty* property = GetProperty(dwPropID);
    if (property == nullptr || property->GetType() == VT_EMPTY) return 0;
    property->Set(pValue);
    return 1;
}

void* CPropertySection::Get(DWORD dwPropID, DWORD* pcb) {
    CProperty* property = GetProperty(dwPropID);
    return property != nullptr ? property->Get(pcb) : nullptr;
}

void* CPropertySection::Get(DWORD dwPropID) {
    return Get(dwPropID, nullptr);
}

void CPropertySection::Remove(DWORD dwPropID) {
    const POSITION position = FindProperty(dwPropID);
    if (position == nullptr) return;
    CObject* property = m_PropertyList.GetAt(position);
    m_PropertyList.RemoveAt(position);
    --m_dwPropertyCount;
    if (m_pIndex && !m_pIndex->Removed(dwPropID)) m_pIndex.reset();
    delete property;
}

void CPropertySection::RemoveAll() {
    for (POSITION next = m_PropertyList.GetHeadPosition(); next != nullptr;)
        delete m_PropertyList.GetNext(next);
    m_PropertyList.RemoveAll();
    m_dwPropertyCount = 0;
    m_pIndex.reset();
}

CProperty* CPropertySection::GetProperty(DWORD dwPropID) {
    const POSITION position = FindProperty(dwPropID);
    return position != nullptr ? static_cast<CProperty*>(m_PropertyList.GetAt(position)) : nullptr;
}

POSITION CPropertySection::FindProperty(DWORD dwPropID) {
    if (m_PropertyList.GetCount() >= orlo::kIndexedFrom && !m_bListExposed) {
        if (!m_pIndex || !m_pIndex->IsUpToDate()) m_pIndex = std::make_unique<orlo::PropertyIndex>(m_PropertyList);
        return m_pIndex->Find(dwPropID);
    }
    for (POSITION next = m_PropertyList.GetHeadPosition(); next != nullptr;) {
        const POSITION here = next;
        if (NextProperty(m_PropertyList, next)->GetID() == dwPropID) return here;
    }
    return nullptr;
}

void CPropertySection::AddProperty(CProperty* pProp) {
    if (pProp->GetID() == orlo::kDictionaryId) {
        m_PropertyList.AddHead(pProp);
        m_pIndex.reset();
    } else {
        const POSITION position = m_PropertyList.AddTail(pProp);
        if (m_pIndex) m_pIndex->AddedAtTail(pProp->GetID(), position);
    }
    ++m_dwPropertyCount;
}

DWORD CPropertySection::GetSize() {
    return m_dwSize;
}
DWORD CPropertySection::GetCount() {
    return static_cast<DWORD>(m_PropertyList.GetCount());
}

CObList* CPropertySection::GetList() {
    m_bListExposed = true; // the caller may change the list at any time
    m_pIndex.reset();
    return &m_PropertyList;
}

int CPropertySection::SetName(DWORD dwPropID, const char* pszName) {
    try {
        const CString name = LowerCase(pszName);
        const int before = m_NameMap.GetCount();
        void*& id = m_NameMap[name];
        if (m_NameMap.GetCount() == before) return 0; // the name existed already
        id = ToMapped(dwPropID);
        m_NameOfID.emplace(dwPropID, name);
        return 1;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

int CPropertySection::GetName(DWORD dwPropID, CString& strName) {
    const auto found = m_NameOfID.find(dwPropID);
    if (found == m_NameOfID.end()) return 0;
    strName = found->second;
    return 1;
}

int CPropertySection::GetID(const char* pszName, DWORD* pdwPropID) {
    void* mapped;
    if (!m_NameMap.Lookup(LowerCase(pszName), mapped)) return 0;
    *pdwPropID = ToId(mapped);
    return 1;
}

int CPropertySection::SetSectionName(const char* pszName) {
    m_strSectionName = pszName;
    return 1;
}

const char* CPropertySection::GetSectionName() {
    return m_strSectionName;
}

int CPropertySection::WriteToStream(IStream* pStream) {
    return orlo::ImageWriter::WriteTo(pStream, [this](orlo::ImageWriter& image) { return AppendTo(image); });
}

int CPropertySection::AppendTo(orlo::ImageWriter& image) {
    if (!m_NameMap.IsEmpty()) Set(orlo::kDictionaryId, nullptr, VT_EMPTY);
    m_dwSize = 0;
    m_dwPropertyCount = GetCount();
    const size_t head = image.Size();
    image.Reserve(kUsualPropertySize * (size_t{m_dwPropertyCount} + static_cast<size_t>(m_NameMap.GetCount())));
    image.Put32(m_dwSize);
    image.Put32(m_dwPropertyCount);
    if (m_dwPropertyCount == 0) return 1;

    size_t entry = image.Size();
    image.PutZeros(orlo::kPropertyLineSize * m_dwPropertyCount);
    for (POSITION next = m_PropertyList.GetHeadPosition(); next != nullptr; entry += orlo::kPropertyLineSize) {
        const CProperty* property = NextProperty(m_PropertyList, next);
        image.Patch32(entry, property->m_dwID);
        image.Patch32(entry + 4, static_cast<uint32_t>(image.Size() - head));
        if (property->m_dwID == orlo::kDictionaryId)
            AppendDictionary(image);
        else if (!property->AppendTo(image))
            return 0;
    }
    if (image.Size() - head > UINT32_MAX) return 0;
    m_dwSize = static_cast<DWORD>(image.Size() - head);
    image.Patch32(head, m_dwSize);
    return 1;
}

int CPropertySection::WriteNameDictToStream(IStream* pStream) {
    return orlo::ImageWriter::WriteTo(pStream, [this](orlo::ImageWriter& image) {
        AppendDictionary(image);
        return true;
    });
}

void CPropertySection::AppendDictionary(orlo::ImageWriter& image) const {
    image.Put32(static_cast<uint32_t>(m_NameMap.GetCount()) + 1);
    orlo::AppendName(image, orlo::kDictionaryId, m_strSectionName);
    CString name;
    void* mapped;
    for (POSITION next = m_NameMap.GetStartPosition(); next != nullptr;) {
        m_NameMap.GetNextAssoc(next, name, mapped);
        orlo::AppendName(image, ToId(mapped), name);
    }
}

int CPropertySection::ReadFromStream(IStream* pStream, LARGE_INTEGER liBase) {
    orlo::StreamReader reader(pStream);
    const int result = ReadFrom(reader, static_cast<ULONGLONG>(liBase.QuadPart));
    reader.SynchronizePosition();
    return result;
}

int CPropertySection::ReadFrom(orlo::StreamReader& reader, ULONGLONG base) {
    if (m_dwPropertyCount != 0 || !m_PropertyList.IsEmpty()) RemoveAll();
    const ULONGLONG head = reader.Position();
    uint32_t header[2];
    if (reader.Read(header, sizeof header) != sizeof header) return 0;
    m_dwSize = header[0];
    m_dwPropertyCount = header[1];
    try {
        return ReadTable(reader, base + head, reader.Position());
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

int CPropertySection::ReadTable(orlo::StreamReader& reader, ULONGLONG values, ULONGLONG table) {
    struct Entry {
        uint32_t id;
        uint32_t offset;
    };
    Entry entries[256]; // read in blocks, because table and values are far apart in a large section
    std::vector<ULONGLONG> dictionaries;
    DWORD left = m_dwPropertyCount;
    while (left > 0) {
        const DWORD count = left < std::size(entries) ? left : static_cast<DWORD>(std::size(entries));
        reader.SeekTo(table);
        const auto readCount = static_cast<DWORD>(reader.Read(entries, count * sizeof(Entry)) / sizeof(Entry));
        if (readCount == 0 || !reader.Spend(ULONGLONG{readCount} * sizeof(Entry))) break;
        for (DWORD i = 0; i < readCount; ++i) {
            if (entries[i].id == orlo::kDictionaryId) {
                dictionaries.push_back(values + entries[i].offset);
            } else {
                reader.SeekTo(values + entries[i].offset);
                ReadProperty(reader, entries[i].id);
            }
        }
        table += readCount * sizeof(Entry);
        left -= readCount;
    }
    for (const ULONGLONG dictionary : dictionaries) { // after the values, because names depend on the code page
        reader.SeekTo(dictionary);
        ReadDictionary(reader);
    }
    return left == 0;
}

// If the value cannot be read, the property has no value and reading continues.
void CPropertySection::ReadProperty(orlo::StreamReader& reader, DWORD dwPropID) {
    auto property = std::make_unique<CProperty>(dwPropID, nullptr, VT_EMPTY);
    property->ReadFrom(reader);
    AddProperty(property.get());
    property.release();
}

int CPropertySection::ReadNameDictFromStream(IStream* pStream) {
    orlo::StreamReader reader(pStream);
    const int result = ReadDictionary(reader);
    reader.SynchronizePosition();
    return result;
}

// Other writers store 16-bit names in sections with code page 1200; this class does not.
int CPropertySection::ReadDictionary(orlo::StreamReader& reader) {
    constexpr uint32_t kLongestName = 256;
    CProperty* codePage = GetProperty(orlo::kCodePageId);
    const void* value = codePage != nullptr && codePage->GetType() == VT_I2 ? codePage->Get() : nullptr;
    const uint16_t page = value != nullptr ? orlo::LittleEndian<uint16_t>(static_cast<const uint8_t*>(value)) : 0;
    const orlo::StoredNames read = orlo::ReadNames(reader, page, kLongestName);
    for (const orlo::StoredName& stored : read.names) {
        const CString name = read.isWide ? NameFromWide(stored.bytes) : CString(stored.bytes.c_str());
        if (&stored == read.names.data() && stored.id == orlo::kDictionaryId)
            m_strSectionName = name;
        else if (!read.isWide || !name.IsEmpty())
            SetName(stored.id, name);
    }
    return read.isWhole;
}

int CPropertySection::WriteToRC(CRCFile* pRC) {
    Set(orlo::kDictionaryId, nullptr, VT_EMPTY);
    m_dwPropertyCount = GetCount();
    m_dwSize = 0;
    const ULONGLONG head = pRC->GetPosition();
    const int commaAtHead = pRC->m_bNeedComma;
    pRC->NewLine();
    pRC->WriteDWord(m_dwSize);
    pRC->WriteDWord(m_dwPropertyCount);
    ULONGLONG entry = pRC->GetPosition();
    const auto writeEntry = [pRC](DWORD id, DWORD offset) {
        pRC->NewLine();
        pRC->WriteDWord(id);
        pRC->WriteDWord(offset);
    };
    for (POSITION next = m_PropertyList.GetHeadPosition(); next != nullptr;)
        writeEntry(NextProperty(m_PropertyList, next)->m_dwID, 0);

    DWORD offset = orlo::kSectionHeadSize + orlo::kPropertyLineSize * m_dwPropertyCount;
    for (POSITION next = m_PropertyList.GetHeadPosition(); next != nullptr;) {
        CProperty* property = NextProperty(m_PropertyList, next);
        const DWORD size = property->m_dwID == orlo::kDictionaryId ? WriteNameDictToRC(pRC) : property->WriteToRC(pRC);
        if (size == 0) return 0;
        const ULONGLONG end = pRC->GetPosition();
        pRC->Seek(static_cast<LONGLONG>(entry), CStdioFile::begin);
        writeEntry(property->m_dwID, offset); // replaces a placeholder of the same size
        entry = pRC->GetPosition();
        offset += size;
        pRC->Seek(static_cast<LONGLONG>(end), CStdioFile::begin);
    }

    m_dwSize = offset;
    const ULONGLONG end = pRC->GetPosition();
    pRC->Seek(static_cast<LONGLONG>(head), CStdioFile::begin);
    pRC->m_bNeedComma = commaAtHead;
    pRC->NewLine();
    pRC->WriteDWord(m_dwSize);
    pRC->Seek(static_cast<LONGLONG>(end), CStdioFile::begin);
    pRC->Flush();
    return 1;
}

DWORD CPropertySection::WriteNameDictToRC(CRCFile* pRC) {
    pRC->NewLine();
    pRC->WriteDWord(static_cast<DWORD>(m_NameMap.GetCount()) + 1);
    DWORD size = 4;
    const auto writeName = [pRC, &size](DWORD id, const CString& name) {
        const DWORD length = orlo::StoredNameSize(name);
        pRC->NewLine();
        pRC->WriteDWord(id);
        pRC->WriteDWord(length);
        pRC->WriteCString(name, length);
        size += 8 + length;
    };
    writeName(orlo::kDictionaryId, m_strSectionName);
    CString name;
    void* mapped;
    for (POSITION next = m_NameMap.GetStartPosition(); next != nullptr;) {
        m_NameMap.GetNextAssoc(next, name, mapped);
        writeName(ToId(mapped), name);
    }
    for (; size % 4 != 0; ++size)
        pRC->WriteNULByte();
    return size;
}
