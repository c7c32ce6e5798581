// Reads a set image: the header, the list of sections, then each section.

#include "orlo/propset/inspect/section_reader.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/value_walk.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string_view>

namespace orlo {

namespace {

class SetReader {
public:
    SetReader(const uint8_t* data, size_t size, std::vector<Finding>& findings)
        : data_(data), size_(size), budget_(size), report_(findings) {}

    std::optional<SetImage> Read() {
        std::optional<SetImage> image;
        if (ReadHeader()) {
            ReadSections();
            CheckTrailingBytes();
            image = std::move(image_);
        }
        report_.Sort();
        return image;
    }

private:
    bool ReadHeader();
    void ReadSections();
    void CheckTrailingBytes();

    const uint8_t* data_;
    size_t size_;
    ReadBudget budget_;
    Report report_;
    SetImage image_;
    size_t reached_ = kSetHeadSize;
};

bool SetReader::ReadHeader() {
    if (size_ < kSetHeadSize) {
        report_.Add(FindingCode::headerShort, Severity::damaged, 0, "the header needs ", kSetHeadSize, " bytes, ",
                    size_, " are present; not a property set");
        return false;
    }
    image_.byteOrder = LittleEndian<uint16_t>(data_);
    image_.version = LittleEndian<uint16_t>(data_ + 2);
    image_.osVersion = LittleEndian<uint32_t>(data_ + 4);
    std::memcpy(&image_.classId, data_ + 8, sizeof image_.classId);
    image_.sectionCount = LittleEndian<uint32_t>(data_ + 24);
    if (image_.byteOrder != kLittleEndianMark) {
        report_.Add(FindingCode::byteOrder, Severity::damaged, 0, "the byte order mark is ", std::hex, image_.byteOrder,
                    " instead of fffe; not a property set");
        return false;
    }
    const size_t left = size_ - kSetHeadSize;
    if (image_.sectionCount > left / kSectionLineSize) {
        report_.Add(FindingCode::sectionListShort, Severity::damaged, 24, "a list of ", image_.sectionCount,
                    " sections needs ", uint64_t{image_.sectionCount} * kSectionLineSize, " bytes, ", left,
                    " remain; not a property set");
        return false;
    }
    if (image_.version > 1)
        report_.Add(FindingCode::formatVersion, Severity::irregular, 2, "the format version is ", image_.version,
                    "; only 0 and 1 are known, and it is read like these");
    if (image_.sectionCount == 0)
        report_.Add(FindingCode::noSections, Severity::irregular, 24, "the set has no sections and no values");
    if (image_.sectionCount > 2)
        report_.Add(FindingCode::manySections, Severity::irregular, 24, image_.sectionCount,
                    " sections; most readers use one or two");
    reached_ += kSectionLineSize * image_.sectionCount;
    return true;
}

void SetReader::ReadSections() {
    const size_t listEnd = reached_;
    std::vector<size_t> heads;
    for (uint32_t i = 0; i < image_.sectionCount; ++i)
        heads.push_back(LittleEndian<uint32_t>(data_ + kSetHeadSize + kSectionLineSize * i + 16));
    std::vector<size_t> sorted = heads;
    std::sort(sorted.begin(), sorted.end());
    std::set<std::string_view> formats; // their bytes

    for (uint32_t i = 0; i < image_.sectionCount; ++i) {
        const size_t entry = kSetHeadSize + kSectionLineSize * i;
        const size_t head = heads[i];
        const std::string place = "section " + std::to_string(i);
        if (head > size_ - kSectionHeadSize) {
            report_.Add(FindingCode::sectionOffsetPastEnd, Severity::damaged, entry + 16, place, ": offset ", head,
                        ", but the stream has ", size_, " bytes; ignored");
            continue;
        }
        ImageSection section;
        std::memcpy(&section.formatId, data_ + entry, sizeof section.formatId);
        section.offset = static_cast<uint32_t>(head);
        if (!formats.emplace(reinterpret_cast<const char*>(data_ + entry), sizeof section.formatId).second)
            report_.Add(FindingCode::sectionRepeated, Severity::irregular, entry, place,
                        ": an earlier section has the same format ID; readers use the first");
        if (head < listEnd)
            report_.Add(FindingCode::sectionOffsetInHeader, Severity::irregular, entry + 16, place, ": offset ", head,
                        " is inside the header");
        if (head % 4 != 0)
            report_.Add(FindingCode::sectionUnaligned, Severity::irregular, entry + 16, place, ": offset ", head,
                        " is not a multiple of 4");
        const auto next = std::upper_bound(sorted.begin(), sorted.end(), head);
        const size_t end = next != sorted.end() && *next < size_ ? *next : size_;
        SectionReader reader(data_ + head, size_ - head, end - head, place, budget_, report_, section);
        const size_t readEnd = head + reader.Read();
        reached_ = std::max(reached_, readEnd);
        if (section.size <= size_ - head) reached_ = std::max(reached_, head + section.size);
        image_.sections.push_back(std::move(section));
    }
}

void SetReader::CheckTrailingBytes() {
    const size_t trailing = size_ - std::min(size_, reached_);
    if (trailing == 0) return;
    const uint8_t* rest = data_ + reached_;
    const bool areZero = *rest == 0 && std::memcmp(rest, rest + 1, trailing - 1) == 0;
    report_.Add(FindingCode::trailingBytes, areZero ? Severity::note : Severity::irregular, reached_, trailing,
                " unused bytes after the set", areZero ? ", all zero" : ", not all zero");
}

} // namespace

std::optional<SetImage> ReadSetImage(const uint8_t* data, size_t size, std::vector<Finding>& findings) {
    return SetReader(data, size, findings).Read();
}

const ImageProperty* ImageSection::Find(uint32_t id) const {
    const auto found =
        std::find_if(properties.begin(), properties.end(), [id](const ImageProperty& p) { return p.id == id; });
    return found != properties.end() ? &*found : nullptr;
}

ImageProperty* ImageSection::Find(uint32_t id) {
    return const_cast<ImageProperty*>(static_cast<const ImageSection*>(this)->Find(id));
}

const ImageSection* SetImage::Find(const GUID& formatId) const {
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [&](const ImageSection& s) { return IsSame(s.formatId, formatId); });
    return found != sections.end() ? &*found : nullptr;
}

ImageSection* SetImage::Find(const GUID& formatId) {
    return const_cast<ImageSection*>(static_cast<const SetImage*>(this)->Find(formatId));
}

} // namespace orlo
