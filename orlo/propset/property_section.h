// CPropertySection: the properties of one format ID, in order, with a dictionary of names for their IDs.
//
//   CPropertySection section(format);
//   long width = 7;
//   section.Set(5, &width, VT_I4);      // 1
//   section.SetName(5, "Width");        // 1; kept as "width"
//   section.GetID("WIDTH", &id);        // 1, id 5
//   section.SetName(6, "width");        // 0: the name is taken
//
// On the stream a section is its size, the number of properties, a table of IDs and offsets, and the values;
// the dictionary is the value of ID 0. Its names are 8-bit texts of at most 254 characters; longer ones are
// cut to 255 on the stream. See docs/property-sets.md.
#pragma once

#include <afxcoll.h>

#include <memory>

#include "orlo/propset/property.h"

namespace orlo {
class NameIndex;
class PropertyIndex;
} // namespace orlo

// Results of type int are 1 for success and 0 for failure. Texts given out belong to the section.
class ORLO_API CPropertySection : public CObject {
public:
    CPropertySection();
    explicit CPropertySection(GUID FormatID);
    ~CPropertySection() override;

    GUID GetFormatID();
    void SetFormatID(GUID FormatID);

    // Sets a property or adds it. The property is kept even where its value was refused (0 only for a new
    // one).
    int Set(DWORD dwPropID, void* pValue, DWORD dwType);
    // Sets the value of an existing property with a type other than 0; 0 if there isn't one.
    int Set(DWORD dwPropID, void* pValue);
    // As CProperty::Get; null if there is no such property.
    void* Get(DWORD dwPropID, DWORD* pcb);
    void* Get(DWORD dwPropID);
    // Destroys the first property of that ID.
    void Remove(DWORD dwPropID);
    // Destroys all properties. The names stay.
    void RemoveAll();

    // The first property of that ID, or null. It stays the section's.
    CProperty* GetProperty(DWORD dwPropID);
    // Takes the property over: at the tail, or at the head for ID 0, which is the dictionary's slot.
    void AddProperty(CProperty* pProp);

    // Size on the stream in bytes; 0 until the section was written or read.
    DWORD GetSize();
    DWORD GetCount();
    // The list itself. A section whose list was given out looks up its properties one by one from then on.
    CObList* GetList();

    // Names are compared without regard to case, and kept in lower case. SetName gives 0 if the name is
    // taken.
    int SetName(DWORD dwPropID, const char* pszName);
    int GetName(DWORD dwPropID, CString& strName);
    int GetID(const char* pszName, DWORD* pdwPropID);
    int SetSectionName(const char* pszName);
    const char* GetSectionName();

    // Writes at the stream's position, and leaves it after the section. Nothing is written if a property has
    // a type without a form on the stream.
    int WriteToStream(IStream* pStream);
    // Reads the section at the stream's position; liBase is the position of the head of the set. A value
    // that can't be read leaves its property without one; 0 only if the table itself is cut short. Names are
    // added to those already there. At most four times the stream's size is read in all, so that overlapping
    // values come to an end.
    int ReadFromStream(IStream* pStream, LARGE_INTEGER liBase);
    // The dictionary at the stream's position. Reading: 0 if it is cut short or a name is longer than 256
    // bytes; the names before that stay. Names in 16-bit characters, as others write them under code page
    // 1200, are read as well; one that the system's code page can't represent is left out.
    int WriteNameDictToStream(IStream* pStream);
    int ReadNameDictFromStream(IStream* pStream);

    // The section, or its dictionary, as items of a resource script. WriteToRC needs a file that can be
    // written over at an earlier position, and gives 0 if a property has no form. WriteNameDictToRC gives the
    // number of bytes.
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
    bool HasWideNames(orlo::StreamReader& reader);
    int ReadDictionary(orlo::StreamReader& reader);

    GUID m_FormatID;
    DWORD m_dwSize;
    DWORD m_dwPropertyCount;
    CObList m_PropertyList;
    CMapStringToPtr m_NameMap;
    CString m_strSectionName;
    bool m_bListGivenOut;
    std::unique_ptr<orlo::PropertyIndex> m_pIndex;
    std::unique_ptr<orlo::NameIndex> m_pNameIndex;
};
