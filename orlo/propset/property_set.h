// CPropertySet: a property set with its sections, as stored on a stream.
//
//   CPropertySet set;
//   set.Set(format, 2, title, VT_LPSTR);   // 1; makes the section
//   set.WriteToStream(stream);             // 1
//   set.Set(other, 2, title);              // 0: no such section, and no type to make the property with
//
// A set begins at position 0 of its stream. Byte order and format version of a stream are read but not
// judged; to check a foreign stream use ReadSetImage (set_image.h).
#pragma once

#include <afxcoll.h>

#include "orlo/propset/property_section.h"

// Results of type int are 1 for success and 0 for failure. The set owns its sections.
class ORLO_API CPropertySet : public CObject {
public:
    CPropertySet();
    explicit CPropertySet(GUID clsID);
    ~CPropertySet() override;

    // Sets a property, and makes its section if necessary. The result is 1.
    int Set(GUID FormatID, DWORD dwPropID, void* pValue, DWORD dwType);
    // Sets the value of an existing property.
    int Set(GUID FormatID, DWORD dwPropID, void* pValue);
    // As CProperty::Get; null without the section or the property.
    void* Get(GUID FormatID, DWORD dwPropID, DWORD* pcb);
    void* Get(GUID FormatID, DWORD dwPropID);
    void Remove(GUID FormatID, DWORD dwPropID);
    // Destroys the first section of that format ID.
    void Remove(GUID FormatID);
    void RemoveAll();

    // The first section of that format ID, or null. It stays the set's.
    CPropertySection* GetSection(GUID FormatID);
    // The section of that format ID, made at the tail if there isn't one.
    CPropertySection* AddSection(GUID FormatID);
    // Takes the section over, at the tail.
    void AddSection(CPropertySection* pSection);

    CProperty* GetProperty(GUID FormatID, DWORD dwPropID);
    // Gives the property to the section. Without the section it stays the caller's.
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

    // In one Write, so that a set that can't be written leaves the stream as it was; a short write gives 0.
    int WriteToStream(IStream* pStream);
    // Replaces all sections. 0 if the header or the list of sections is cut short; a damaged section stays in
    // the list with what could be read of it. The position of the stream is undefined afterwards.
    int ReadFromStream(IStream* pStream);

private:
    POSITION FindSection(const GUID& FormatID);
    int AppendTo(orlo::ImageWriter& image, ULONGLONG start);
    int ReadFrom(orlo::StreamReader& reader, ULONGLONG base);

    WORD m_wByteOrder; // these five are the header as stored on the stream
    WORD m_wFormatVersion;
    DWORD m_dwOSVersion;
    GUID m_ClassID;
    DWORD m_dwSectionCount;
    CObList m_SectionList;
};
