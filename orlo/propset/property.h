// CProperty: one value of a property set, stored as the bytes that follow its type code on the stream.
//
//   CProperty title;
//   char text[] = "Ground floor";
//   title.Set(2, text, VT_LPSTR);                        // returns 1; stored with its length and NUL
//   title.Set(3, CString("12, 34"), VT_VECTOR | VT_I4);  // returns 1; the two numbers as a vector
//   title.Set(text, VT_DISPATCH);                        // returns 0: no stored form; the property has no value now
//   title.Get(&size);                                    // returns null, size 0: no value
//
// Types: VT_EMPTY, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_BOOL (4 bytes), VT_R4, VT_R8, VT_CY, VT_DATE, VT_I8, VT_FILETIME,
// VT_CLSID; counted 8-bit texts VT_LPSTR, VT_BSTR, VT_STREAM, VT_STORAGE, VT_STREAMED_OBJECT, VT_STORED_OBJECT; counted
// bytes VT_BLOB, VT_BLOB_OBJECT, VT_CF and the codes 73 to 75; counted 16-bit text VT_LPWSTR; and vectors of them
// (VT_VECTOR), whose elements are packed without padding. All numbers are little-endian.
#pragma once

#include <afx.h>
#include <objidl.h>

#include "orlo/export.h"

class CRCFile;

namespace orlo {
class ImageWriter;
class StreamReader;
} // namespace orlo

// Functions of type int return 1 on success and 0 on failure. Every Set releases the old value first: after a failure
// the property has the new type and no value.
class ORLO_API CProperty : public CObject {
public:
    CProperty();
    CProperty(DWORD dwID, void* const pValue, DWORD dwType);
    ~CProperty() override;

    // Copies a value from memory. pValue points to the value (fixed sizes), a NUL-terminated text (text types; the
    // length is added), the length and bytes (counted bytes), or the complete stored block (vectors: the element count,
    // then the elements in stored form). With null or type 0 the property gets no value, which is a success.
    int Set(DWORD dwID, void* const pValue, DWORD dwType);
    int Set(void* const pValue, DWORD dwType);
    int Set(void* const pValue);

    // Sets the value from text: from its first token (see tokens.h), or from all tokens under VT_VECTOR. With empty
    // text the property gets no value, which is a success. Numbers are parsed up to the first invalid character, with
    // "." as the decimal point; the result is 0 if there is no number. VT_LPWSTR takes the token as text in the
    // system's code page. The types of value_text.h (VT_CY, VT_DATE, VT_I8, VT_FILETIME, VT_CLSID) accept the forms
    // listed there and fail for other tokens.
    int Set(DWORD dwID, const CString& strValue, DWORD dwType);
    int Set(const CString& strValue);

    // Returns a pointer to the element: after its length for texts, VT_CF and the codes 73 and 74, at its length for
    // VT_BLOB, VT_BLOB_OBJECT and the code 75. *pcb (may be null) receives its size in bytes without the length.
    // Returns null and leaves *pcb unchanged for a vector or a type without a stored form. Returns null and sets *pcb
    // to 0 if there is no value or the block is too short for the type. The pointer is valid until the property
    // changes.
    void* Get(DWORD* pcb);
    void* Get();
    // Returns the stored block, or null; needed to access a vector.
    void* GetRawValue();

    DWORD GetType();
    void SetType(DWORD dwType); // does not change the value
    DWORD GetID();
    void SetID(DWORD dwPropID);

    // Writes type code, value and zero bytes up to a multiple of 4 with a single call of Write. Without a value it
    // writes an empty text (only the NUL), no bytes, or a vector without elements; for types of fixed size VT_EMPTY.
    int WriteToStream(IStream* pStream);
    // Reads the value and leaves the stream directly after it, before its padding. Returns 0 if the value is truncated:
    // the missing bytes are zero, or, if the length is implausible for the size of the stream, there is no value.
    int ReadFromStream(IStream* pStream);
    // Writes the same as items of a resource script. Returns the number of bytes that they represent, or 0.
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
    DWORD m_cbValue; // bytes in the block; never read beyond, whatever the type
};
