// Writes a set image, preserving every value byte for byte.

#include "orlo/propset/code_page.h"
#include "orlo/propset/inspect/image_dictionary.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/value_walk.h"

namespace orlo {

namespace {

void Align(ImageWriter& image) {
    image.PutZeros(PaddingOf(image.Size()));
}

// Fills in the section's table, whose space was reserved.
class Table {
public:
    Table(ImageWriter& image, size_t head, size_t count) : image_(image), head_(head), next_(image.Size()) {
        image.PutZeros(count * kPropertyLineSize);
    }
    void Add(uint32_t id) {
        image_.Patch32(next_, id);
        image_.Patch32(next_ + 4, static_cast<uint32_t>(image_.Size() - head_));
        next_ += kPropertyLineSize;
    }

private:
    ImageWriter& image_;
    size_t head_;
    size_t next_;
};

bool AppendSection(const ImageSection& section, ImageWriter& image) {
    size_t count = section.dictionary ? 1 : 0;
    for (const ImageProperty& property : section.properties)
        if (property.state != ValueState::partial) ++count;

    const size_t head = image.Size();
    image.Put32(0);
    image.Put32(static_cast<uint32_t>(count));
    Table table(image, head, count);
    if (section.dictionary) {
        table.Add(kDictionaryId);
        if (!AppendImageDictionary(*section.dictionary, section.codePage.value_or(kUsualCodePage), image)) return false;
        Align(image);
    }
    for (const ImageProperty& property : section.properties) {
        if (property.state == ValueState::partial) continue;
        table.Add(property.id);
        image.Put32(property.type | uint32_t{property.typeHighHalf} << 16);
        image.Put(property.bytes.data(), property.bytes.size());
        Align(image);
    }
    image.Patch32(head, static_cast<uint32_t>(image.Size() - head));
    return true;
}

} // namespace

std::optional<Bytes> WriteSetImage(const SetImage& set) {
    ImageWriter image;
    image.Put16(kLittleEndianMark);
    image.Put16(set.version);
    image.Put32(set.osVersion);
    image.Put(&set.classId, sizeof set.classId);
    image.Put32(static_cast<uint32_t>(set.sections.size()));
    size_t entry = image.Size();
    image.PutZeros(set.sections.size() * kSectionLineSize);
    for (const ImageSection& section : set.sections) {
        image.Patch(entry, &section.formatId, sizeof section.formatId);
        image.Patch32(entry + 16, static_cast<uint32_t>(image.Size()));
        entry += kSectionLineSize;
        if (!AppendSection(section, image)) return std::nullopt;
    }
    return image.Take();
}

} // namespace orlo
