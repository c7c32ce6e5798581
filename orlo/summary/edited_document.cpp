// Writes a copy with a new layout, and compares it with the file piece by piece.

#include "orlo/summary/edited_document.h"

#include <algorithm>

#include "files/file_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"
#include "orlo/propset/code_page.h"
#include "orlo/summary/compound_writer.h"

namespace orlo {
namespace {

constexpr char kVerificationFailed[] = "the file was left unchanged: verification of the new copy failed";
constexpr char kChangedMeanwhile[] = "another program has changed the file in the meantime";

std::u16string StreamNameFrom(const std::string& utf8) {
    const auto units = Utf8ToCodePage(utf8, kCodePageUtf16);
    const std::u16string name =
        units ? std::u16string(reinterpret_cast<const char16_t*>(units->data()), units->size() / 2) : u"";
    if (!IsStreamName(name)) throw files::FileError("the stream cannot be written: invalid stream name");
    return name;
}

std::optional<Bytes> ReadStream(const CompoundReader& file, const std::string& name) {
    const CompoundStream* stream = FindStream(file, name);
    return stream ? std::optional<Bytes>(file.Read(*stream)) : std::nullopt;
}

// Compares name, kind, class, state bits and times; the rest of an entry is its position in tree and file.
bool IsSameEntry(const CompoundElement& a, const CompoundElement& b) {
    using namespace compound;
    const auto isSame = [&](size_t begin, size_t end) {
        return std::equal(a.record.begin() + begin, a.record.begin() + end, b.record.begin() + begin);
    };
    return a.path == b.path && isSame(0, kColor) && isSame(kClassId, kStart);
}

bool IsSameStream(const CompoundReader& a, const CompoundElement& inA, const CompoundReader& b,
                  const CompoundElement& inB) {
    if (!inA.stream || !inB.stream) return inA.stream == inB.stream;
    const CompoundStream &first = a.Streams()[*inA.stream], &second = b.Streams()[*inB.stream];
    if (first.size != second.size) return false;
    CompoundStreamReader firstReader(a, first), secondReader(b, second);
    Bytes piece, other;
    uint64_t compared = 0;
    while (firstReader.Next(piece)) {
        secondReader.Next(other);
        if (piece != other) return false;
        compared += piece.size();
    }
    return compared == first.size;
}

} // namespace

UnfitDocument::UnfitDocument(const std::string& text) : std::runtime_error(text) {}
UnfitDocument::~UnfitDocument() = default;

class EditedDocument::Original {
public:
    explicit Original(const std::filesystem::path& file)
        : guard(files::OpenAgainstWriters(file)), reader(OpenCompoundFile(file)) {}
    explicit Original(Bytes document)
        : guard(files::NoFile()), reader(ReadCompoundFile(std::make_shared<Bytes>(std::move(document)))) {}

    const files::OpenFile guard;
    const CompoundReader reader;
};

EditedDocument::EditedDocument(const std::filesystem::path& file, IfMissing ifMissing) : path_(file) {
    // Some systems let administrators write a read-only file anyway.
    if (!files::RequireReplaceable(file) && ifMissing == IfMissing::Create) return;
    original_ = std::make_unique<Original>(file);
    RequireIntact();
}

EditedDocument::EditedDocument(Bytes document) : original_(std::make_unique<Original>(std::move(document))) {
    RequireIntact();
}

void EditedDocument::RequireIntact() const {
    if (original_->reader.State() == CompoundState::foreign) throw UnfitDocument("the file is not a compound file");
    if (original_->reader.State() != CompoundState::intact)
        throw UnfitDocument("was not changed: the compound file is damaged");
}

EditedDocument::~EditedDocument() = default;

std::optional<Bytes> EditedDocument::Read(const std::string& name) const {
    if (!original_) return std::nullopt;
    return read_[name] = ReadStream(original_->reader, name);
}

void EditedDocument::Write(const std::string& name, Bytes bytes) {
    const std::u16string key = StreamNameFrom(name);
    const auto same = std::find_if(written_.begin(), written_.end(),
                                   [&](const auto& written) { return CompareNames(written.first, key) == 0; });
    (same != written_.end() ? same->second : written_[key]) = std::move(bytes);
}

void EditedDocument::Commit() {
    if (written_.empty()) return;
    files::FileReplacement copy(path_);
    {
        const files::OpenFile file = files::OpenToWrite(copy.Path());
        WriteCompoundFile(original_ ? &original_->reader : nullptr, written_,
                          [&file](std::string_view bytes) { files::Append(file.get(), bytes); });
    }
    Check(OpenCompoundFile(copy.Path()));
    original_.reset();
    copy.Commit();
}

Bytes EditedDocument::Contents() const {
    const auto contents = std::make_shared<Bytes>();
    WriteCompoundFile(original_ ? &original_->reader : nullptr, written_, [&contents](std::string_view bytes) {
        contents->insert(contents->end(), bytes.begin(), bytes.end());
    });
    Check(ReadCompoundFile(contents));
    return std::move(*contents);
}

// Returns the elements of a file that were not replaced.
std::vector<const CompoundElement*> EditedDocument::UnchangedElements(const CompoundReader& file) const {
    std::vector<const CompoundElement*> unchanged;
    for (const CompoundElement& element : file.Elements()) {
        const bool isWritten = std::any_of(written_.begin(), written_.end(), [&](const auto& written) {
            return CompareNames(written.first, element.path) == 0;
        });
        if (!isWritten) unchanged.push_back(&element);
    }
    return unchanged;
}

bool EditedDocument::HasWritten(const CompoundReader& copy) const {
    return std::all_of(written_.begin(), written_.end(), [&](const auto& written) {
        const auto& elements = copy.Elements();
        const auto found = std::find_if(elements.begin(), elements.end(), [&](const CompoundElement& element) {
            return CompareNames(written.first, element.path) == 0;
        });
        return found != elements.end() && found->stream && copy.Read(copy.Streams()[*found->stream]) == written.second;
    });
}

// Verifies that the copy is intact, contains everything that was written, and is otherwise equal to the file.
void EditedDocument::Check(const CompoundReader& copy) const {
    const std::vector<const CompoundElement*> copied = UnchangedElements(copy);
    bool isValid = copy.State() == CompoundState::intact && HasWritten(copy) &&
                   copied.size() + written_.size() == copy.Elements().size();
    if (original_) {
        const CompoundReader now = path_.empty() ? original_->reader : OpenCompoundFile(path_);
        for (const auto& [name, bytes] : read_)
            if (ReadStream(now, name) != bytes) throw files::FileError(kChangedMeanwhile);
        const std::vector<const CompoundElement*> unchanged = UnchangedElements(now);
        const auto isSame = [&](const CompoundElement* a, const CompoundElement* b) {
            return IsSameEntry(*a, *b) && IsSameStream(now, *a, copy, *b);
        };
        isValid = isValid && std::equal(unchanged.begin(), unchanged.end(), copied.begin(), copied.end(), isSame);
    }
    if (!isValid) throw files::FileError(kVerificationFailed);
}

} // namespace orlo
