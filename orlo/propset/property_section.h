// CPropertySection: the properties of one format ID, in order, with a dictionary of names for their IDs.
//
//   CPropertySection section(format);
//   long width = 7;
//   section.Set(5, &width, VT_I4);      // returns 1
//   section.SetName(5, "Width");        // returns 1; stored as "width"
//   section.GetID("WIDTH", &id);        // returns 1, id is 5
//   section.SetName(6, "width");        // returns 0: the name is in use
//
// On the stream, a section consists of its size, the number of properties, a table of IDs and offsets, and the values;
// the dictionary is the value of ID 0. Its names are 8-bit texts of at most 254 characters; longer ones are truncated
// to 255 on the stream. The guide of property sets has details.
#pragma once

#include <afxcoll.h>

#include <memory>
#include <unordered_map>

#include "orlo/propset/property.h"

namespace orlo {
class PropertyIndex;
} // namespace orlo

// Functions of type int return 1 on success and 0 on failure. Returned texts belong to the section.
class ORLO_API CPropertySection : public CObject {
public:
    CPropertySection();
    explicit CPropertySection(GUID FormatID);
    ~CPropertySection() override;

    GUID GetFormatID();
    void SetFormatID(GUID FormatID);

    // Sets or adds a property. Even if the value is rejected, the property remains. Returns 0 only if a new property's
    // value is rejected.
    int Set(DWORD dwPropID, void* pValue, DWORD dwType);
    // Sets the value of an existing property whose type is not 0. Returns 0 if there is none.
    int Set(DWORD dwPropID, void* pValue);
    // See CProperty::Get. Returns null if there is no such property.
    void* Get(DWORD dwPropID, DWORD* pcb);
    void* Get(DWORD dwPropID);
    // Deletes the first property with that ID.
    void Remove(DWORD dwPropID);
    // Deletes all properties. The names remain.
    void RemoveAll();

    // Returns the first property with that ID, or null. It belongs to the section.
    CProperty* GetProperty(DWORD dwPropID);
    // Takes ownership of the property and adds it at the end, or for ID 0, the dictionary, at the beginning.
    void AddProperty(CProperty* pProp);

    // Returns the stored size in bytes, or 0 until the section has been written or read.
    DWORD GetSize();
    DWORD GetCount();
    // Returns the list itself. From then on the section searches its properties linearly.
    CObList* GetList();

    // Names are compared ignoring case and stored in lowercase. SetName returns 0 if the name is in use.
    int SetName(DWORD dwPropID, const char* pszName);
    int GetName(DWORD dwPropID, CString& strName);
    int GetID(const char* pszName, DWORD* pdwPropID);
    int SetSectionName(const char* pszName);
    const char* GetSectionName();

    // Writes at the stream's position and leaves it after the section. Writes nothing if the type of a property has no
    // stored form.
    int WriteToStream(IStream* pStream);
    // Reads the section at the stream's position; liBase is the position of the start of the set. If a value cannot be
    // read, its property has no value; returns 0 only if the table itself is truncated. Names are added to existing
    // ones. Reads at most four times the stream's size in total, so that reading terminates even if values overlap.
    int ReadFromStream(IStream* pStream, LARGE_INTEGER liBase);
    // Write and read the dictionary at the stream's position. Reading returns 0 if the dictionary is truncated or a
    // name is longer than 256 bytes; the names before it are kept. It accepts names in 16-bit characters, as others
    // write them under code page 1200, and skips those that the system's code page cannot represent.
    int WriteNameDictToStream(IStream* pStream);
    int ReadNameDictFromStream(IStream* pStream);

    // Write the section, or its dictionary, as items of a resource script. WriteToRC requires a seekable file and
    // returns 0 if a property has no stored form. WriteNameDictToRC returns the number of bytes.
    int WriteToRC(CRCFile* pRC);
    DWORD WriteNameDictToRC(CRCFile* pRC);

private:
    friend class CPropertySet;

    POSITION FindProperty(DWORD dwPropID);
    int AppendTo(orlo::ImageWriter& image);
    void AppendDictionary(orlo::ImageWriter& image) const;
    int ReadFrom(orlo::StreamReader& reader, ULONGLONG base);
    int ReadTable(orlo::StreamReader& reader, ULONGLONG values, ULONGLONG table);
    void ReadProperty(orlo::StreamReader& reader, DWORD dwPropID);
    int ReadDictionary(orlo::StreamReader& reader);

    GUID m_FormatID;
    DWORD m_dwSize;
    DWORD m_dwPropertyCount;
    CObList m_PropertyList;
    CMapStringToPtr m_NameMap;
    std::unordered_map<DWORD, CString> m_NameOfID; // the first name of each
    CString m_strSectionName;
    bool m_bListExposed;
    std::unique_ptr<orlo::PropertyIndex> m_pIndex;
};
