// The header of a set and the list of its sections.

#include "orlo/propset/property_set.h"

#include <cstring>
#include <memory>
#include <new>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/stream_reader.h"
#include "orlo/propset/value_form.h"

namespace {

constexpr DWORD kWindows = 2;
constexpr size_t kUsualSetSize = 1000; // for a summary without a thumbnail

CPropertySection* NextSection(const CObList& list, POSITION& position) {
    return static_cast<CPropertySection*>(list.GetNext(position));
}

} // namespace

CPropertySet::CPropertySet() : CPropertySet(GUID{}) {}

CPropertySet::CPropertySet(GUID clsID)
    : m_wByteOrder(orlo::kLittleEndianMark), m_wFormatVersion(0),
      m_dwOSVersion((::GetVersion() & 0xFFFF) | kWindows << 16), m_ClassID(clsID), m_dwSectionCount(0),
      m_SectionList(10) {}

CPropertySet::~CPropertySet() {
    RemoveAll();
}

int CPropertySet::Set(GUID FormatID, DWORD dwPropID, void* pValue, DWORD dwType) {
    AddSection(FormatID)->Set(dwPropID, pValue, dwType);
    return 1;
}

int CPropertySet::Set(GUID FormatID, DWORD dwPropID, void* pValue) {
    CPropertySection* section = GetSection(FormatID);
    return section != nullptr ? section->Set(dwPropID, pValue) : 0;
}

void* CPropertySet::Get(GUID FormatID, DWORD dwPropID, DWORD* pcb) {
    CPropertySection* section = GetSection(FormatID);
    return section != nullptr ? section->Get(dwPropID, pcb) : nullptr;
}

void* CPropertySet::Get(GUID FormatID, DWORD dwPropID) {
    return Get(FormatID, dwPropID, nullptr);
}

void CPropertySet::Remove(GUID FormatID, DWORD dwPropID) {
    if (CPropertySection* section = GetSection(FormatID)) section->Remove(dwPropID);
}

void CPropertySet::Remove(GUID FormatID) {
    const POSITION position = FindSection(FormatID);
    if (position == nullptr) return;
    delete m_SectionList.GetAt(position);
    m_SectionList.RemoveAt(position);
    --m_dwSectionCount;
}

void CPropertySet::RemoveAll() {
    for (POSITION next = m_SectionList.GetHeadPosition(); next != nullptr;)
        delete m_SectionList.GetNext(next);
    m_SectionList.RemoveAll();
    m_dwSectionCount = 0;
}

POSITION CPropertySet::FindSection(const GUID& FormatID) {
    for (POSITION next = m_SectionList.GetHeadPosition(); next != nullptr;) {
        const POSITION here = next;
        if (orlo::IsSame(NextSection(m_SectionList, next)->GetFormatID(), FormatID)) return here;
    }
    return nullptr;
}

CPropertySection* CPropertySet::GetSection(GUID FormatID) {
    const POSITION position = FindSection(FormatID);
    return position != nullptr ? static_cast<CPropertySection*>(m_SectionList.GetAt(position)) : nullptr;
}

CPropertySection* CPropertySet::AddSection(GUID FormatID) {
    CPropertySection* section = GetSection(FormatID);
    if (section == nullptr) {
        section = new CPropertySection(FormatID);
        AddSection(section);
    }
    return section;
}

void CPropertySet::AddSection(CPropertySection* pSection) {
    m_SectionList.AddTail(pSection);
    ++m_dwSectionCount;
}

CProperty* CPropertySet::GetProperty(GUID FormatID, DWORD dwPropID) {
    CPropertySection* section = GetSection(FormatID);
    return section != nullptr ? section->GetProperty(dwPropID) : nullptr;
}

void CPropertySet::AddProperty(GUID FormatID, CProperty* pProp) {
    if (CPropertySection* section = GetSection(FormatID)) section->AddProperty(pProp);
}

WORD CPropertySet::GetByteOrder() {
    return m_wByteOrder;
}
WORD CPropertySet::GetFormatVersion() {
    return m_wFormatVersion;
}
void CPropertySet::SetFormatVersion(WORD wFmtVersion) {
    m_wFormatVersion = wFmtVersion;
}
DWORD CPropertySet::GetOSVersion() {
    return m_dwOSVersion;
}
void CPropertySet::SetOSVersion(DWORD dwOSVer) {
    m_dwOSVersion = dwOSVer;
}
GUID CPropertySet::GetClassID() {
    return m_ClassID;
}
void CPropertySet::SetClassID(GUID clsID) {
    m_ClassID = clsID;
}
DWORD CPropertySet::GetCount() {
    return static_cast<DWORD>(m_SectionList.GetCount());
}
CObList* CPropertySet::GetList() {
    return &m_SectionList;
}

int CPropertySet::WriteToStream(IStream* pStream) {
    LARGE_INTEGER noOffset;
    noOffset.QuadPart = 0;
    ULARGE_INTEGER start;
    if (FAILED(pStream->Seek(noOffset, STREAM_SEEK_CUR, &start))) return 0;
    return orlo::ImageWriter::WriteTo(pStream,
                                      [&](orlo::ImageWriter& image) { return AppendTo(image, start.QuadPart); });
}

int CPropertySet::AppendTo(orlo::ImageWriter& image, ULONGLONG start) {
    m_dwSectionCount = GetCount();
    image.Reserve(kUsualSetSize);
    image.Put16(m_wByteOrder);
    image.Put16(m_wFormatVersion);
    image.Put32(m_dwOSVersion);
    image.Put(&m_ClassID, sizeof m_ClassID);
    image.Put32(m_dwSectionCount);
    size_t entry = image.Size();
    image.PutZeros(orlo::kSectionLineSize * m_dwSectionCount);
    for (POSITION next = m_SectionList.GetHeadPosition(); next != nullptr; entry += orlo::kSectionLineSize) {
        CPropertySection* section = NextSection(m_SectionList, next);
        const GUID format = section->GetFormatID();
        image.Patch(entry, &format, sizeof format);
        image.Patch32(entry + sizeof format, static_cast<uint32_t>(start + image.Size()));
        if (!section->AppendTo(image)) return 0;
    }
    return 1;
}

int CPropertySet::ReadFromStream(IStream* pStream) {
    orlo::StreamReader reader(pStream);
    if (m_dwSectionCount != 0 || !m_SectionList.IsEmpty()) RemoveAll();
    try {
        return ReadFrom(reader, reader.Position());
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

int CPropertySet::ReadFrom(orlo::StreamReader& reader, ULONGLONG base) {
    uint8_t header[orlo::kSetHeadSize];
    if (reader.Read(header, sizeof header) != sizeof header) return 0;
    m_wByteOrder = orlo::LittleEndian<uint16_t>(header);
    m_wFormatVersion = orlo::LittleEndian<uint16_t>(header + 2);
    m_dwOSVersion = orlo::LittleEndian<uint32_t>(header + 4);
    std::memcpy(&m_ClassID, header + 8, sizeof m_ClassID);
    const DWORD count = orlo::LittleEndian<uint32_t>(header + 24);
    m_dwSectionCount = count;

    for (DWORD i = 0; i < count; ++i) {
        uint8_t entry[orlo::kSectionLineSize];
        reader.SeekTo(base + orlo::kSetHeadSize + ULONGLONG{orlo::kSectionLineSize} * i);
        if (reader.Read(entry, sizeof entry) != sizeof entry || !reader.Spend(sizeof entry)) return 0;
        GUID format;
        std::memcpy(&format, entry, sizeof format);
        auto section = std::make_unique<CPropertySection>(format);
        reader.SeekTo(base + orlo::LittleEndian<uint32_t>(entry + sizeof format));
        section->ReadFrom(reader, base);
        m_SectionList.AddTail(section.get());
        section.release();
    }
    return 1;
}
