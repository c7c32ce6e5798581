// Reads header, allocation tables, directory and streams, checking each before using what it refers to.

#include "orlo/summary/compound_reader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "orlo/propset/bytes.h"

namespace orlo {

using namespace compound;

namespace {

constexpr size_t kDeepestStorage = 64; // real documents have fewer levels

bool IsShort(uint64_t size) {
    return size < kShortStreamLimit;
}

// Siblings are sorted by name: by length, then by letters ignoring case. Returns true if in doubt, since the order of
// letters outside of ASCII depends on the system.
bool MayFollow(const std::u16string& before, const std::u16string& after) {
    if (before.size() != after.size()) return before.size() < after.size();
    const auto upper = [](char16_t c) { return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c; };
    for (size_t i = 0; i < before.size(); ++i) {
        const char16_t first = upper(before[i]), second = upper(after[i]);
        if (first != second) return first < second || (first > 0x7F && second > 0x7F);
    }
    return false;
}

struct Entry {
    EntryBytes record;
    std::u16string name;
    bool isNamed;      // the length of the name is valid
    bool isTerminated; // the name ends with a NUL, its only one
    uint8_t kind;
    uint32_t left, right, child, start;
    uint64_t size;

    Entry(const uint8_t* at, bool wideSizes)
        : kind(at[kEntryKind]), left(LittleEndian<uint32_t>(at + kLeft)), right(LittleEndian<uint32_t>(at + kRight)),
          child(LittleEndian<uint32_t>(at + kChild)), start(LittleEndian<uint32_t>(at + kStart)),
          size(wideSizes ? LittleEndian<uint64_t>(at + kSize) : LittleEndian<uint32_t>(at + kSize)) {
        std::copy_n(at, kEntryBytes, record.begin());
        const auto nameBytes = LittleEndian<uint16_t>(at + kNameSize); // its NUL is one of them
        isNamed = nameBytes >= 2 && nameBytes <= kNameBytes && nameBytes % 2 == 0;
        for (size_t i = 0; isNamed && i < nameBytes; i += 2)
            name.push_back(LittleEndian<uint16_t>(at + i));
        isTerminated = isNamed && name.find(u'\0') == name.size() - 1;
        if (isNamed) name.pop_back();
    }
};

struct Storage {
    uint32_t firstEntry;
    std::u16string path; // including a trailing slash
    size_t depth;
    size_t element; // among the elements
};

} // namespace

class CompoundReader::Structure {
public:
    Structure(ReadAt read, uint64_t size);

    CompoundState State() const { return state_; }
    const std::vector<std::string>& Damage() const { return damage_; }
    const std::vector<CompoundStream>& Streams() const { return streams_; }
    const std::vector<CompoundElement>& Elements() const { return elements_; }
    const HeaderBytes& Header() const { return header_; }
    std::vector<uint32_t> SectorsOf(const CompoundStream& stream) const;
    bool ReadPiece(const CompoundStream& stream, const std::vector<uint32_t>& sectors, uint64_t offset,
                   std::vector<uint8_t>& piece) const;

private:
    void Damaged(std::string what, CompoundState state = CompoundState::unsafe);
    bool ReadHeader();
    void CheckHeader();
    uint32_t HeaderNumber(size_t offset) const;
    void Count(const char* what, size_t offset, size_t found);
    void ReadSector(uint32_t sector, uint8_t* bytes, const char* what);
    std::vector<uint8_t> Sectors(const std::vector<uint32_t>& sectors, const char* what);
    std::vector<uint32_t> Numbers(const std::vector<uint32_t>& sectors, const char* what);
    bool Claim(uint32_t sector, std::vector<bool>& claimed);
    void ReadTable();
    SectorTable::Chain WalkWhole(uint32_t start, const char* what);
    std::vector<Entry> ReadDirectory();
    void ReadShortStreams(const Entry& root);
    void WalkTree(const std::vector<Entry>& entries);
    bool VisitEntry(const std::vector<Entry>& entries, uint32_t id, std::vector<bool>& visited);
    void WalkStorage(const std::vector<Entry>& entries, const Storage& storage, std::vector<bool>& visited,
                     std::vector<Storage>& ahead);
    void AddLost(const std::vector<Entry>& entries, const std::vector<bool>& visited);
    void CheckName(const Entry& entry, const Entry* before, uint32_t id);
    void AddStream(const Entry& entry, std::u16string path, bool isLost);
    void WalkStream(CompoundStream& stream);
    uint64_t SharedSectors(const CompoundStream& stream, uint64_t required, bool isShort);
    uint64_t BytesOf(const std::vector<uint32_t>& chain) const;
    uint64_t At(uint32_t sector) const { return (uint64_t{sector} + 1) * sectorBytes_; }
    uint64_t ShortAt(uint32_t sector) const;

    ReadAt read_;
    uint64_t fileSize_;
    HeaderBytes header_ = {};
    CompoundState state_ = CompoundState::foreign;
    size_t sectorBytes_ = 0;
    bool hasWideSizes_ = false; // streams may have 4 GB or more
    uint64_t sectors_ = 0;      // number of sectors in the file, including a truncated last one
    uint64_t sharedLeft_ = 0;   // limit for the total number of sectors that streams may share
    SectorTable table_, shortTable_;
    std::vector<uint32_t> shortStreams_; // sectors of the stream that contains the short streams
    std::vector<std::string> damage_;
    std::vector<CompoundStream> streams_;
    std::vector<CompoundElement> elements_;
};

CompoundReader::Structure::Structure(ReadAt read, uint64_t size) : read_(std::move(read)), fileSize_(size) {
    if (!ReadHeader()) return;
    ReadTable();
    const std::vector<Entry> entries = ReadDirectory();
    if (entries.empty() || entries[0].kind != kRoot) {
        Damaged("the directory: the root storage is missing");
        return;
    }
    ReadShortStreams(entries[0]);
    WalkTree(entries);
}

void CompoundReader::Structure::Damaged(std::string what, CompoundState state) {
    damage_.push_back(std::move(what));
    state_ = std::max(state_, state);
}

uint32_t CompoundReader::Structure::HeaderNumber(size_t offset) const {
    return LittleEndian<uint32_t>(header_.data() + offset);
}

// Returns false if nothing after the header can be located.
bool CompoundReader::Structure::ReadHeader() {
    if (fileSize_ < header_.size() || !read_(0, header_.data(), header_.size())) return false;
    if (!std::equal(kCompoundSignature.begin(), kCompoundSignature.end(), header_.begin())) return false;
    state_ = CompoundState::intact;
    const auto shift = LittleEndian<uint16_t>(header_.data() + kSectorShift);
    if (shift != 9 && shift != 12) {
        Damaged("the header: sectors of 2^" + std::to_string(shift) + " bytes");
        return false;
    }
    sectorBytes_ = size_t{1} << shift;
    sectors_ = std::min<uint64_t>(UnitCount(fileSize_, sectorBytes_) - 1, kHighestSector);
    sharedLeft_ = sectors_;
    CheckHeader();
    return true;
}

void CompoundReader::Structure::CheckHeader() {
    const auto isFixed = [this](size_t offset, uint16_t value) {
        return LittleEndian<uint16_t>(header_.data() + offset) == value;
    };
    // Older systems wrote long sectors under the version of short ones.
    const bool isVersion = isFixed(kVersion, 3) || (isFixed(kVersion, 4) && sectorBytes_ != 512);
    if (!isVersion) Damaged("the header: its version");
    hasWideSizes_ = isFixed(kVersion, 4);
    if (!isFixed(kByteOrder, 0xFFFE)) Damaged("the header: its byte order");
    if (!isFixed(kShortSectorShift, 6)) Damaged("the header: the size of short sectors");
    if (HeaderNumber(kShortLimit) != kShortStreamLimit) Damaged("the header: the limit of short streams");
}

// Compares a number in the header with the number found.
void CompoundReader::Structure::Count(const char* what, size_t offset, size_t found) {
    if (HeaderNumber(offset) == found) return;
    Damaged(std::string("the header: it declares ") + std::to_string(HeaderNumber(offset)) + " sectors of " + what +
            ", but " + std::to_string(found) + " exist");
}

// Reads a sector of the structure. Missing bytes are left unchanged.
void CompoundReader::Structure::ReadSector(uint32_t sector, uint8_t* bytes, const char* what) {
    const uint64_t at = At(sector);
    const uint64_t available = sector < sectors_ ? std::min<uint64_t>(sectorBytes_, fileSize_ - at) : 0;
    if (available == sectorBytes_ && read_(at, bytes, sectorBytes_)) return;
    Damaged(std::string(what) + ": sector " + std::to_string(sector) + " cannot be read");
    if (available != 0) read_(at, bytes, static_cast<size_t>(available));
}

// Reads sectors and concatenates them, reading neighboring ones at once. Missing sectors are filled with the value for
// free sectors.
std::vector<uint8_t> CompoundReader::Structure::Sectors(const std::vector<uint32_t>& sectors, const char* what) {
    std::vector<uint8_t> bytes(sectors.size() * sectorBytes_, 0xFF);
    for (size_t first = 0, next = 0; first < sectors.size(); first = next) {
        do
            ++next;
        while (next < sectors.size() && sectors[next] == sectors[next - 1] + 1);
        const size_t size = (next - first) * sectorBytes_;
        const uint64_t at = At(sectors[first]);
        uint8_t* const to = bytes.data() + first * sectorBytes_;
        if (at + size <= fileSize_ && read_(at, to, size)) continue;
        for (size_t i = first; i < next; ++i)
            ReadSector(sectors[i], bytes.data() + i * sectorBytes_, what);
    }
    return bytes;
}

std::vector<uint32_t> CompoundReader::Structure::Numbers(const std::vector<uint32_t>& sectors, const char* what) {
    const std::vector<uint8_t> bytes = Sectors(sectors, what);
    std::vector<uint32_t> numbers(bytes.size() / sizeof(uint32_t));
    if (!numbers.empty()) std::memcpy(numbers.data(), bytes.data(), bytes.size());
    return numbers;
}

bool CompoundReader::Structure::Claim(uint32_t sector, std::vector<bool>& claimed) {
    const bool isFree = sector < claimed.size() && !claimed[sector];
    if (isFree)
        claimed[sector] = true;
    else
        Damaged("the allocation table: sector " + std::to_string(sector) +
                (sector < claimed.size() ? " is listed twice" : " does not exist"));
    return isFree;
}

// The sectors of the allocation table are listed in the header, then in a chain of further lists.
void CompoundReader::Structure::ReadTable() {
    constexpr char kWhat[] = "the allocation table";
    std::vector<uint32_t> tables;
    std::vector<bool> claimed(static_cast<size_t>(sectors_));
    const auto add = [&](uint32_t sector) {
        if (sector != kNone && Claim(sector, claimed)) tables.push_back(sector);
    };
    for (size_t i = 0; i < kTablesInHeader; ++i)
        add(HeaderNumber(kTables + 4 * i));
    std::vector<uint32_t> lists;
    for (uint32_t list = HeaderNumber(kListStart); list < kHighestSector && Claim(list, claimed);) {
        const std::vector<uint32_t> numbers = Numbers({list}, kWhat);
        std::for_each(numbers.begin(), numbers.end() - 1, add);
        lists.push_back(list);
        list = numbers.back();
    }
    Count("the allocation table", kTableSectors, tables.size());
    Count("the list of allocation tables", kListSectors, lists.size());
    std::vector<uint32_t> next = Numbers(tables, kWhat);
    table_ = SectorTable(std::move(next), sectors_);
    tables.insert(tables.end(), lists.begin(), lists.end());
    if (!table_.Reserve(tables)) Damaged("the allocation table: its own sectors are marked as free");
}

// Follows the chain of a part of the structure, reporting damage.
SectorTable::Chain CompoundReader::Structure::WalkWhole(uint32_t start, const char* what) {
    SectorTable::Chain chain = table_.Walk(start);
    if (chain.fault != ChainFault::none)
        Damaged(std::string(what) + ": its chain of sectors " + InWords(chain.fault),
                chain.fault == ChainFault::pastEnd ? CompoundState::damaged : CompoundState::unsafe);
    return chain;
}

std::vector<Entry> CompoundReader::Structure::ReadDirectory() {
    constexpr char kWhat[] = "the directory";
    std::vector<Entry> entries;
    const SectorTable::Chain chain = WalkWhole(HeaderNumber(kDirectoryStart), kWhat);
    if (hasWideSizes_ && HeaderNumber(kDirectorySectors) != 0)
        Count(kWhat, kDirectorySectors, chain.length); // older systems left it out
    const std::vector<uint8_t> bytes = Sectors(chain.sectors, kWhat);
    for (size_t at = 0; at < bytes.size(); at += kEntryBytes)
        entries.emplace_back(bytes.data() + at, hasWideSizes_);
    return entries;
}

// Short streams are stored in the root's stream and have their own allocation table.
void CompoundReader::Structure::ReadShortStreams(const Entry& root) {
    constexpr char kTable[] = "the table of short streams", kStreams[] = "the short streams";
    const SectorTable::Chain tables = HeaderNumber(kShortTableSectors) == 0
                                          ? SectorTable::Chain()
                                          : WalkWhole(HeaderNumber(kShortTableStart), kTable);
    Count(kTable, kShortTableSectors, tables.length);
    const SectorTable::Chain streams = root.size == 0 ? SectorTable::Chain() : WalkWhole(root.start, kStreams);
    const uint64_t available = std::min(root.size, BytesOf(streams.sectors));
    if (streams.length < UnitCount(root.size, sectorBytes_))
        Damaged(std::string(kStreams) + ": their chain of sectors is too short");
    else if (available < root.size)
        Damaged(std::string(kStreams) + ": they continue past the end of the file", CompoundState::damaged);
    std::vector<uint32_t> next = Numbers(tables.sectors, kTable);
    next.resize(static_cast<size_t>(std::min<uint64_t>(next.size(), UnitCount(root.size, kShortSectorBytes))));
    shortTable_ = SectorTable(std::move(next), available / kShortSectorBytes);
    shortStreams_ = streams.sectors;
}

void CompoundReader::Structure::WalkTree(const std::vector<Entry>& entries) {
    std::vector<bool> visited(entries.size());
    visited[0] = true;
    elements_.push_back({{}, entries[0].record, 0, std::nullopt});
    std::vector<Storage> ahead = {{entries[0].child, {}, 0, 0}};
    for (size_t i = 0; i < ahead.size(); ++i)
        WalkStorage(entries, Storage(ahead[i]), visited, ahead);
    AddLost(entries, visited);
}

// Adds entries that are not reachable: the tree has a damaged link, but their streams may be intact.
void CompoundReader::Structure::AddLost(const std::vector<Entry>& entries, const std::vector<bool>& visited) {
    size_t lost = 0;
    for (size_t id = 0; id < entries.size(); ++id) {
        if (visited[id] || entries[id].kind == kFree) continue;
        ++lost;
        if (entries[id].kind == kStream && entries[id].isNamed) AddStream(entries[id], entries[id].name, true);
    }
    if (lost != 0) Damaged("the directory: " + std::to_string(lost) + " unreachable entries", CompoundState::damaged);
}

bool CompoundReader::Structure::VisitEntry(const std::vector<Entry>& entries, uint32_t id, std::vector<bool>& visited) {
    if (id == kNone) return false;
    const char* fault = nullptr;
    if (id >= entries.size())
        fault = " does not exist";
    else if (visited[id])
        fault = " is linked twice";
    else if (!entries[id].isNamed || (entries[id].kind != kStorage && entries[id].kind != kStream))
        fault = " is neither stream nor storage";
    if (fault)
        Damaged("the directory: entry " + std::to_string(id) + fault);
    else
        visited[id] = true;
    return !fault;
}

// The entries of a storage form a tree sorted by name.
void CompoundReader::Structure::WalkStorage(const std::vector<Entry>& entries, const Storage& storage,
                                            std::vector<bool>& visited, std::vector<Storage>& ahead) {
    std::vector<uint32_t> above;
    const Entry* before = nullptr;
    uint32_t id = storage.firstEntry;
    while (true) {
        for (; VisitEntry(entries, id, visited); id = entries[id].left)
            above.push_back(id);
        if (above.empty()) return;
        const Entry& entry = entries[above.back()];
        CheckName(entry, std::exchange(before, &entry), above.back());
        above.pop_back();
        id = entry.right;
        std::u16string path = storage.path + entry.name;
        elements_.push_back({path, entry.record, storage.element, std::nullopt});
        if (entry.kind == kStream) {
            elements_.back().stream = streams_.size();
            AddStream(entry, std::move(path), false);
        } else if (storage.depth < kDeepestStorage)
            ahead.push_back({entry.child, std::move(path) + u'/', storage.depth + 1, elements_.size() - 1});
        else
            Damaged("the directory: storages are nested deeper than " + std::to_string(kDeepestStorage));
    }
}

// The system finds a name by the sort order; a misplaced or duplicate name could be added a second time.
void CompoundReader::Structure::CheckName(const Entry& entry, const Entry* before, uint32_t id) {
    if (!entry.isTerminated || (before && !MayFollow(before->name, entry.name)))
        Damaged("the directory: the name of entry " + std::to_string(id) + " is not in sort order",
                CompoundState::damaged);
}

void CompoundReader::Structure::AddStream(const Entry& entry, std::u16string path, bool isLost) {
    CompoundStream stream = {std::move(path), entry.size, entry.start, 0, ChainFault::none, isLost};
    if (entry.size != 0)
        WalkStream(stream);
    else if (entry.start < kHighestSector)
        stream.fault = ChainFault::unexpected;
    const bool isCircular = stream.fault == ChainFault::circular && !isLost;
    if (stream.fault != ChainFault::none)
        state_ = std::max(state_, isCircular ? CompoundState::unsafe : CompoundState::damaged);
    streams_.push_back(std::move(stream));
}

void CompoundReader::Structure::WalkStream(CompoundStream& stream) {
    const bool isShort = IsShort(stream.size);
    const SectorTable::Chain chain = (isShort ? shortTable_ : table_).Walk(stream.start);
    const uint64_t required = UnitCount(stream.size, isShort ? kShortSectorBytes : sectorBytes_);
    stream.sectors = chain.sectors.size();
    stream.fault = chain.fault;
    if (stream.fault == ChainFault::shared) stream.sectors += SharedSectors(stream, required, isShort);
    if (stream.fault == ChainFault::none &&
        (stream.sectors < required || (!isShort && BytesOf(chain.sectors) < stream.size)))
        stream.fault = ChainFault::tooShort;
}

// Returns the number of readable sectors after the point at which the chain joins that of another stream. The total for
// all streams is limited to the number of sectors in the file, since these sectors are read again for each stream.
uint64_t CompoundReader::Structure::SharedSectors(const CompoundStream& stream, uint64_t required, bool isShort) {
    if (stream.sectors >= required) return 0;
    const uint64_t most = std::min(required, stream.sectors + sharedLeft_);
    const uint64_t shared = (isShort ? shortTable_ : table_).Follow(stream.start, most).size() - stream.sectors;
    sharedLeft_ -= shared;
    return shared;
}

// Returns the number of bytes present in these sectors, which is smaller if the last sector of the file is truncated.
uint64_t CompoundReader::Structure::BytesOf(const std::vector<uint32_t>& chain) const {
    const auto cut = fileSize_ % sectorBytes_ == 0 ? chain.end() : std::find(chain.begin(), chain.end(), sectors_ - 1);
    const uint64_t before = static_cast<uint64_t>(cut - chain.begin()) * sectorBytes_;
    return cut == chain.end() ? before : before + fileSize_ % sectorBytes_;
}

uint64_t CompoundReader::Structure::ShortAt(uint32_t sector) const {
    const uint64_t inside = uint64_t{sector} * kShortSectorBytes;
    return At(shortStreams_[static_cast<size_t>(inside / sectorBytes_)]) + inside % sectorBytes_;
}

std::vector<uint32_t> CompoundReader::Structure::SectorsOf(const CompoundStream& stream) const {
    const bool isShort = IsShort(stream.size);
    const uint64_t most = std::min(stream.sectors, UnitCount(stream.size, isShort ? kShortSectorBytes : sectorBytes_));
    return (isShort ? shortTable_ : table_).Follow(stream.start, most);
}

// Appends the bytes from `offset` on, the start of a sector, until the piece is full or the stream ends. Neighboring
// sectors are read at once: most streams are one run of them. Returns false if bytes are missing.
bool CompoundReader::Structure::ReadPiece(const CompoundStream& stream, const std::vector<uint32_t>& sectors,
                                          uint64_t offset, std::vector<uint8_t>& piece) const {
    const bool isShort = IsShort(stream.size);
    const size_t each = isShort ? kShortSectorBytes : sectorBytes_;
    const auto at = [&](size_t i) { return isShort ? ShortAt(sectors[i]) : At(sectors[i]); };
    auto first = static_cast<size_t>(offset / each);
    const size_t end = std::min(sectors.size(), first + CompoundStreamReader::kPieceBytes / each);
    for (size_t next = first; first < end; first = next) {
        do
            ++next;
        while (next < end && at(next) == at(next - 1) + each);
        const size_t before = piece.size();
        const uint64_t start = at(first);
        const uint64_t required = std::min<uint64_t>((next - first) * each, stream.size - first * uint64_t{each});
        const auto available = static_cast<size_t>(start < fileSize_ ? std::min(required, fileSize_ - start) : 0);
        piece.resize(before + available);
        if (available == 0 || !read_(start, piece.data() + before, available)) piece.resize(before);
        if (piece.size() - before != required) return false;
    }
    return true;
}

CompoundStreamReader::CompoundStreamReader(const CompoundReader& file, const CompoundStream& stream)
    : structure_(file.structure_), stream_(&stream), sectors_(structure_->SectorsOf(stream)) {}

bool CompoundStreamReader::Next(std::vector<uint8_t>& piece) {
    piece.clear();
    if (hasEnded_) return false;
    const bool isWhole = structure_->ReadPiece(*stream_, sectors_, offset_, piece);
    hasEnded_ = !isWhole || piece.size() != kPieceBytes;
    offset_ += piece.size();
    return !piece.empty();
}

CompoundReader::CompoundReader(ReadAt read, uint64_t size)
    : structure_(std::make_shared<const Structure>(std::move(read), size)) {}

CompoundState CompoundReader::State() const {
    return structure_->State();
}

const std::vector<std::string>& CompoundReader::Damage() const {
    return structure_->Damage();
}

const std::vector<CompoundStream>& CompoundReader::Streams() const {
    return structure_->Streams();
}

std::vector<uint8_t> CompoundReader::Read(const CompoundStream& stream) const {
    CompoundStreamReader reader(*this, stream);
    std::vector<uint8_t> bytes, piece;
    while (reader.Next(piece)) {
        if (bytes.empty())
            bytes.swap(piece);
        else
            bytes.insert(bytes.end(), piece.begin(), piece.end());
    }
    return bytes;
}

const std::vector<CompoundElement>& CompoundReader::Elements() const {
    return structure_->Elements();
}

const HeaderBytes& CompoundReader::Header() const {
    return structure_->Header();
}

} // namespace orlo
