// CProperty: one value of a property set, kept in the very bytes that are on the stream after its type
// code.
//
//   CProperty title;
//   char text[] = "Ground floor";
//   title.Set(2, text, VT_LPSTR);                        // 1; stored with its length and NUL
//   title.Set(3, CString("12, 34"), VT_VECTOR | VT_I4);  // 1; the two numbers as a vector
//   title.Set(text, VT_DISPATCH);                        // 0: that type has no form; no value is left
//   title.Get(&size);                                    // null, size 0: there is no value
//
// Types: VT_EMPTY, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_BOOL (4 bytes), VT_R4, VT_R8, VT_CY, VT_DATE, VT_I8,
// VT_FILETIME, VT_CLSID; counted 8-bit texts VT_LPSTR, VT_BSTR, VT_STREAM, VT_STORAGE, VT_STREAMED_OBJECT,
// VT_STORED_OBJECT; counted bytes VT_BLOB, VT_BLOB_OBJECT, VT_CF and the codes 73 to 75; counted 16-bit text
// VT_LPWSTR; and vectors of them (VT_VECTOR), whose elements lie end to end without padding. Everything is
// little-endian, never swapped.
#pragma once

#include <afx.h>
#include <objidl.h>

#include "orlo/export.h"

class CRCFile;

namespace orlo {
class ImageWriter;
class StreamReader;
} // namespace orlo

// Results of type int are 1 for success and 0 for failure. Every Set releases the old value first: after a
// failure the property has the type it was given and no value.
class ORLO_API CProperty : public CObject {
public:
    CProperty();
    CProperty(DWORD dwID, void* const pValue, DWORD dwType);
    ~CProperty() override;

    // From memory. pValue points to the value (fixed sizes), a plain text that ends with NUL (text types; the
    // length is added here), the length and bytes (counted bytes), or the complete stored block (vectors: the
    // element count, then the elements in stored form). It is copied. Null, or type 0: no value, which is
    // a success.
    int Set(DWORD dwID, void* const pValue, DWORD dwType);
    int Set(void* const pValue, DWORD dwType);
    int Set(void* const pValue);

    // From a text: its first token (see tokens.h), or every token under VT_VECTOR. An empty text: no value, a
    // success. Numbers are read as far as they are numbers, with a "." as the decimal mark, and are 0 if they
    // are not numbers. VT_LPWSTR takes the token as text of the system's code page. The types of value_text.h
    // (VT_CY, VT_DATE, VT_I8, VT_FILETIME, VT_CLSID) take the forms named there; a token that has none of
    // them is refused.
    int Set(DWORD dwID, const CString& strValue, DWORD dwType);
    int Set(const CString& strValue);

    // The element, after its length for texts, VT_CF and the codes 73 and 74, with its length for VT_BLOB,
    // VT_BLOB_OBJECT and the code 75; *pcb (may be null) is its size in bytes without the length. Null with
    // *pcb left alone for a vector and for a type without a form. Null with *pcb = 0 without a value, or if
    // the block is too short for the type. The property's, until its next change.
    void* Get(DWORD* pcb);
    void* Get();
    // The stored block, or null; the way to reach a vector.
    void* GetRawValue();

    DWORD GetType();
    void SetType(DWORD dwType); // the value stays as it is
    DWORD GetID();
    void SetID(DWORD dwPropID);

    // Type code, value, zero bytes up to a multiple of 4, in one Write. Without a value: an empty text (of
    // the NUL alone), no bytes, a vector of no elements; for a fixed size, of which none would be true,
    // VT_EMPTY.
    int WriteToStream(IStream* pStream);
    // Leaves the stream directly after the value, before its padding. 0 if the value is not there in full:
    // then what was read of it stays, the rest of the block is zero; a length out of all proportion to the stream
    // leaves no value.
    int ReadFromStream(IStream* pStream);
    // The same as items of a resource script; the number of bytes that they stand for, or 0.
    DWORD WriteToRC(CRCFile* pRC);

private:
    friend class CPropertySection;

    void* AllocValue(DWORD cb);
    void FreeValue();
    int AppendTo(orlo::ImageWriter& image) const;
    int ReadFrom(orlo::StreamReader& reader);

    DWORD m_dwID;
    DWORD m_dwType;
    void* m_pValue;
    DWORD m_cbValue; // bytes in the block: no walk leaves it, whatever the type says
};
