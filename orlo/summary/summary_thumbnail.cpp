// The thumbnail of a summary as a clipboard-format value: length, tag, format, picture. It is drawn by thumbnail.h.

#include <cstring>
#include <vector>

#include "orlo/propset/property_set.h"
#include "orlo/summary/ole_summary.h"
#include "orlo/summary/summary_field.h"

namespace {

constexpr DWORD kSystemFormat = 0xFFFFFFFF;

// The bytes between the length and the picture.
struct Head {
    DWORD tag, format;
};

class LockedBlock {
public:
    explicit LockedBlock(HGLOBAL block) : block_(block), data_(::GlobalLock(block)) {}
    ~LockedBlock() {
        if (data_) ::GlobalUnlock(block_);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;
    void* data() const { return data_; }

private:
    HGLOBAL block_;
    void* data_;
};

HGLOBAL CopyToBlock(const void* data, DWORD size) {
    const HGLOBAL block = ::GlobalAlloc(GHND, size);
    if (!block) return nullptr;
    {
        const LockedBlock locked(block);
        if (locked.data()) {
            std::memcpy(locked.data(), data, size);
            return block;
        }
    }
    ::GlobalFree(block);
    return nullptr;
}

} // namespace

int OleStdGetThumbNailProperty(CPropertySet* pSumInfo, DWORD* pdwFormat, HGLOBAL* phData, DWORD* pcbData) {
    CProperty* property = orlo::SummaryProperty(pSumInfo, PIDSI_THUMBNAIL, VT_CF);
    DWORD size = 0;
    const auto value = property ? static_cast<const BYTE*>(property->Get(&size)) : nullptr;
    Head head;
    if (!value || size < sizeof head) return 0;
    std::memcpy(&head, value, sizeof head);
    if (head.tag != kSystemFormat) return 0;
    *pdwFormat = head.format;
    *pcbData = size - sizeof head;
    const HGLOBAL block = CopyToBlock(value + sizeof head, *pcbData);
    if (!block) return 0;
    *phData = block;
    return static_cast<int>(kSystemFormat);
}

int OleStdSetThumbNailProperty(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData) {
    if (!hData && cbData == 0) return orlo::StoreSummaryProperty(pSumInfo, PIDSI_THUMBNAIL, VT_CF, nullptr);
    const Head head = {kSystemFormat, dwFormat};
    if (cbData > MAXDWORD - sizeof head) return 0;
    const LockedBlock locked(hData);
    if (!locked.data() || ::GlobalSize(hData) < cbData) return 0;
    const DWORD size = cbData + sizeof head;
    std::vector<BYTE> value(sizeof size + size);
    std::memcpy(value.data(), &size, sizeof size);
    std::memcpy(value.data() + sizeof size, &head, sizeof head);
    std::memcpy(value.data() + sizeof size + sizeof head, locked.data(), cbData);
    return orlo::StoreSummaryProperty(pSumInfo, PIDSI_THUMBNAIL, VT_CF, value.data());
}
