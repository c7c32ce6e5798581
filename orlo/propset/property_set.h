// CPropertySet: a property set with its sections, as stored on a stream.
//
//   CPropertySet set;
//   set.Set(format, 2, title, VT_LPSTR);   // returns 1; creates the section
//   set.WriteToStream(stream);             // returns 1
//   set.Set(other, 2, title);              // returns 0: there is no such section, and no type to create the property
//
// A set begins at position 0 of its stream. Byte order and format version are read but not checked; use ReadSetImage
// (set_image.h) to check a stream from an untrusted source.
#pragma once

#include <afxcoll.h>

#include "orlo/propset/property_section.h"

// Functions of type int return 1 on success and 0 on failure. The set owns its sections.
class ORLO_API CPropertySet : public CObject {
public:
    CPropertySet();
    explicit CPropertySet(GUID clsID);
    ~CPropertySet() override;

    // Sets a property, creating its section if needed. Returns 1.
    int Set(GUID FormatID, DWORD dwPropID, void* pValue, DWORD dwType);
    // Sets the value of an existing property.
    int Set(GUID FormatID, DWORD dwPropID, void* pValue);
    // See CProperty::Get. Returns null if the section or the property does not exist.
    void* Get(GUID FormatID, DWORD dwPropID, DWORD* pcb);
    void* Get(GUID FormatID, DWORD dwPropID);
    void Remove(GUID FormatID, DWORD dwPropID);
    // Deletes the first section with that format ID.
    void Remove(GUID FormatID);
    void RemoveAll();

    // Returns the first section with that format ID, or null. It belongs to the set.
    CPropertySection* GetSection(GUID FormatID);
    // Returns the section with that format ID, adding it at the end if needed.
    CPropertySection* AddSection(GUID FormatID);
    // Takes ownership of the section and adds it at the end.
    void AddSection(CPropertySection* pSection);

    CProperty* GetProperty(GUID FormatID, DWORD dwPropID);
    // Transfers the property to the section. If there is no such section, the caller keeps ownership.
    void AddProperty(GUID FormatID, CProperty* pProp);

    WORD GetByteOrder();
    WORD GetFormatVersion();
    void SetFormatVersion(WORD wFmtVersion);
    DWORD GetOSVersion();
    void SetOSVersion(DWORD dwOSVer);
    GUID GetClassID();
    void SetClassID(GUID clsID);
    DWORD GetCount();
    CObList* GetList();

    // Writes with a single call of Write, so that a set that cannot be written leaves the stream unchanged. Returns 0
    // after a short write.
    int WriteToStream(IStream* pStream);
    // Replaces all sections. Returns 0 if the header or the list of sections is truncated; a damaged section remains in
    // the list with the properties that could be read. The position of the stream is undefined afterward.
    int ReadFromStream(IStream* pStream);

private:
    POSITION FindSection(const GUID& FormatID);
    int AppendTo(orlo::ImageWriter& image, ULONGLONG start);
    int ReadFrom(orlo::StreamReader& reader, ULONGLONG base);

    WORD m_wByteOrder; // these five members are the header as stored on the stream
    WORD m_wFormatVersion;
    DWORD m_dwOSVersion;
    GUID m_ClassID;
    DWORD m_dwSectionCount;
    CObList m_SectionList;
};
