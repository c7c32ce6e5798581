// Computes the position of everything before writing the first byte: streams, short streams with their table,
// directory, allocation table, and the list of its sectors.

#include "orlo/summary/compound_writer.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "orlo/propset/bytes.h"
#include "orlo/propset/code_page.h"

namespace orlo {

using namespace compound;

namespace {

using Append = std::function<void(std::string_view bytes)>;

// ---- Directory

// An entry of the new directory, with the source of its bytes if it is a stream.
struct Element {
    EntryBytes record = {};
    size_t storage = 0;
    const CompoundStream* source = nullptr;
    const std::vector<uint8_t>* written = nullptr;
    uint64_t size = 0;

    bool IsStream() const { return record[kEntryKind] == kStream; }
    bool IsShort() const { return IsStream() && size != 0 && size < kShortStreamLimit; }
    bool IsLong() const { return IsStream() && size >= kShortStreamLimit; }
    std::u16string Name() const {
        std::u16string name(LittleEndian<uint16_t>(&record[kNameSize]) / sizeof(char16_t) - 1, u'\0');
        std::memcpy(name.data(), record.data(), name.size() * sizeof(char16_t));
        return name;
    }
};

EntryBytes NewRecord(std::u16string_view name, Kind kind) {
    EntryBytes record = {};
    std::memcpy(record.data(), name.data(), name.size() * sizeof(char16_t));
    PutLittleEndian(&record[kNameSize], static_cast<uint16_t>((name.size() + 1) * sizeof(char16_t)));
    record[kEntryKind] = kind;
    return record;
}

bool Precedes(const std::u16string& a, const std::u16string& b) {
    return a.size() != b.size() ? a.size() < b.size() : CompareNames(a, b) < 0;
}

class Directory {
public:
    Directory(const CompoundReader* original, const StreamsToWrite& streams) {
        if (original != nullptr)
            AddAll(*original);
        else
            elements_.emplace_back().record = NewRecord(u"Root Entry", kRoot);
        for (const auto& [name, bytes] : streams)
            Write(name, bytes);
        LinkStorages();
    }

    std::vector<Element>& Elements() { return elements_; }

private:
    void AddAll(const CompoundReader& original) {
        for (const CompoundElement& element : original.Elements()) {
            Element& added = elements_.emplace_back();
            added.record = element.record;
            added.storage = element.storage;
            if (!element.stream) continue;
            added.source = &original.Streams()[*element.stream];
            added.size = added.source->size;
        }
    }

    // The elements of the root come first, sorted by name; a new one is inserted in this order.
    void Write(const std::u16string& name, const std::vector<uint8_t>& bytes) {
        size_t end = 1;
        while (end < elements_.size() && elements_[end].storage == 0)
            ++end;
        size_t place = end;
        for (size_t i = end; i-- > 1;) {
            const std::u16string other = elements_[i].Name();
            if (other.size() == name.size() && CompareNames(other, name) == 0) return Replace(elements_[i], bytes);
            if (Precedes(name, other)) place = i;
        }
        for (Element& element : elements_)
            if (element.storage >= place) ++element.storage;
        Element& added = *elements_.emplace(elements_.begin() + static_cast<ptrdiff_t>(place));
        added.record = NewRecord(name, kStream);
        Replace(added, bytes);
    }

    static void Replace(Element& element, const std::vector<uint8_t>& bytes) {
        if (!element.IsStream()) throw std::runtime_error("the stream cannot be written: a storage has its name");
        element.source = nullptr;
        element.written = &bytes;
        element.size = bytes.size();
    }

    void LinkStorages() {
        std::vector<std::vector<size_t>> contents(elements_.size());
        for (size_t i = 1; i < elements_.size(); ++i)
            contents[elements_[i].storage].push_back(i);
        for (size_t i = 0; i < elements_.size(); ++i) {
            size_t levels = 0; // number of full levels
            while ((size_t{2} << levels) - 1 <= contents[i].size())
                ++levels;
            PutLittleEndian(&elements_[i].record[kChild], LinkTree(contents[i], 0, contents[i].size(), levels));
        }
        PutLittleEndian(&elements_[0].record[kLeft], kNone);
        PutLittleEndian(&elements_[0].record[kRight], kNone);
        elements_[0].record[kColor] = kBlack;
    }

    // Dividing the entries into equal halves fills all levels of the tree but the last, whose entries are red: every
    // path to a leaf then has the same number of black entries.
    uint32_t LinkTree(const std::vector<size_t>& contents, size_t begin, size_t end, size_t blackLevels) {
        if (begin == end) return kNone;
        const size_t middle = begin + (end - begin) / 2;
        EntryBytes& record = elements_[contents[middle]].record;
        const size_t below = blackLevels == 0 ? 0 : blackLevels - 1;
        record[kColor] = blackLevels == 0 ? kRed : kBlack;
        PutLittleEndian(&record[kLeft], LinkTree(contents, begin, middle, below));
        PutLittleEndian(&record[kRight], LinkTree(contents, middle + 1, end, below));
        return static_cast<uint32_t>(contents[middle]);
    }

    std::vector<Element> elements_;
};

// ---- Sectors

// Allocates sectors in file order, except the one that the system locks.
class Allocation {
public:
    struct Run {
        uint32_t start;
        uint64_t count;
        uint32_t mark; // of each of its sectors; kEndOfChain for a chain
    };

    explicit Allocation(size_t sectorBytes) : locked_(static_cast<uint32_t>(kLockedBytes / sectorBytes - 1)) {}

    uint32_t Locked() const { return locked_; }
    uint64_t Count() const { return next_; }
    const std::vector<Run>& Runs() const { return runs_; }
    uint32_t After(uint32_t sector) const { return sector + 1 == locked_ ? sector + 2 : sector + 1; }

    // Returns the first sector, or kEndOfChain if count is 0.
    uint32_t Take(uint64_t count, uint32_t mark = kEndOfChain) {
        if (count == 0) return kEndOfChain;
        if (next_ == locked_) ++next_;
        const uint64_t start = next_;
        next_ += count;
        if (start < locked_ && next_ > locked_) ++next_;
        if (next_ >= kHighestSector) throw std::runtime_error("the file would become too large");
        runs_.push_back({static_cast<uint32_t>(start), count, mark});
        return static_cast<uint32_t>(start);
    }

private:
    uint32_t locked_;
    uint64_t next_ = 0;
    std::vector<Run> runs_;
};

// Appends bytes, with zeros in the locked sector.
class Output {
public:
    Output(const Append& append, size_t sectorBytes)
        : append_(append), sectorBytes_(sectorBytes), locked_(kLockedBytes / sectorBytes * sectorBytes) {}
    ~Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Write(const void* bytes, size_t size) {
        const auto* from = static_cast<const char*>(bytes);
        while (size > 0) {
            if (at_ == locked_) Add(std::string(sectorBytes_, '\0').data(), sectorBytes_);
            const size_t most = at_ < locked_ ? static_cast<size_t>(std::min<uint64_t>(size, locked_ - at_)) : size;
            Add(from, most);
            from += most;
            size -= most;
        }
    }
    void WriteNumber(uint32_t number) { Write(&number, sizeof number); }
    // Pads the last unit.
    void Pad(size_t unit, char filler = '\0') {
        const auto rest = static_cast<size_t>(at_ % unit);
        if (rest != 0) Write(std::string(unit - rest, filler).data(), unit - rest);
    }
    void Flush() {
        append_(buffer_);
        buffer_.clear();
    }

private:
    void Add(const char* bytes, size_t size) {
        constexpr size_t kBuffer = size_t{1} << 18;
        buffer_.append(bytes, size);
        at_ += size;
        if (buffer_.size() >= kBuffer) Flush();
    }

    const Append& append_;
    size_t sectorBytes_;
    uint64_t locked_, at_ = 0;
    std::string buffer_;
};

class Writer {
public:
    Writer(const CompoundReader* original, const StreamsToWrite& streams, const Append& append)
        : original_(original), header_(original ? original->Header() : NewHeader()), directory_(original, streams),
          sectorBytes_(size_t{1} << LittleEndian<uint16_t>(&header_[kSectorShift])), allocation_(sectorBytes_),
          output_(append, sectorBytes_) {}

    void Write() {
        PlaceStreams();
        PlaceShortStreams();
        PlaceDirectory();
        PlaceTable();
        WriteHeader();
        for (const Element& element : directory_.Elements())
            if (element.IsLong()) WriteStream(element, sectorBytes_);
        WriteShortStreams();
        WriteDirectory();
        WriteTable();
        WriteLists();
        output_.Flush();
    }

private:
    static HeaderBytes NewHeader() {
        HeaderBytes header = {};
        std::copy(kCompoundSignature.begin(), kCompoundSignature.end(), header.begin());
        PutLittleEndian(&header[kMinorVersion], uint16_t{0x3E});
        PutLittleEndian(&header[kVersion], uint16_t{3});
        PutLittleEndian(&header[kByteOrder], uint16_t{0xFFFE});
        PutLittleEndian(&header[kSectorShift], uint16_t{9});
        PutLittleEndian(&header[kShortSectorShift], uint16_t{6});
        PutLittleEndian(&header[kShortLimit], kShortStreamLimit);
        return header;
    }
    bool HasWideSizes() const { return LittleEndian<uint16_t>(&header_[kVersion]) == 4; }
    size_t NumbersInSector() const { return sectorBytes_ / sizeof(uint32_t); }
    void PutHeader(size_t field, uint64_t number) { PutLittleEndian(&header_[field], static_cast<uint32_t>(number)); }

    void PutPlace(Element& element, uint32_t start, uint64_t size) const {
        if (!HasWideSizes() && size > UINT32_MAX) throw std::runtime_error("the file would become too large");
        PutLittleEndian(&element.record[kStart], start);
        PutLittleEndian(&element.record[kSize], size);
    }

    void PlaceStreams() {
        for (Element& element : directory_.Elements())
            if (element.IsLong())
                PutPlace(element, allocation_.Take(UnitCount(element.size, sectorBytes_)), element.size);
    }

    void PlaceShortStreams() {
        uint32_t next = 0;
        for (Element& element : directory_.Elements()) {
            if (!element.IsStream() || element.IsLong()) continue;
            PutPlace(element, element.IsShort() ? next : kEndOfChain, element.size);
            next += static_cast<uint32_t>(UnitCount(element.size, kShortSectorBytes));
        }
        const uint64_t size = uint64_t{next} * kShortSectorBytes;
        PutPlace(directory_.Elements()[0], allocation_.Take(UnitCount(size, sectorBytes_)), size);
        const uint64_t tables = UnitCount(next, NumbersInSector());
        PutHeader(kShortTableSectors, tables);
        PutHeader(kShortTableStart, allocation_.Take(tables));
    }

    void PlaceDirectory() {
        const uint64_t sectors = UnitCount(directory_.Elements().size() * kEntryBytes, sectorBytes_);
        PutHeader(kDirectorySectors, HasWideSizes() ? sectors : 0);
        PutHeader(kDirectoryStart, allocation_.Take(sectors));
    }

    // The table includes its own sectors, those of the lists, and the locked sector.
    void PlaceTable() {
        const uint64_t otherSectors = allocation_.Count();
        uint64_t before = 0;
        do {
            before = tables_;
            tables_ = UnitCount(otherSectors + before + lists_ + 1, NumbersInSector());
            lists_ = tables_ > kTablesInHeader ? UnitCount(tables_ - kTablesInHeader, NumbersInSector() - 1) : 0;
        } while (tables_ != before);
        tableStart_ = allocation_.Take(tables_, kTableSector);
        listStart_ = allocation_.Take(lists_, kListSector);
        PutHeader(kTableSectors, tables_);
        PutHeader(kListSectors, lists_);
        PutHeader(kListStart, listStart_);
        uint32_t table = tableStart_;
        for (size_t i = 0; i < kTablesInHeader; ++i) {
            PutHeader(kTables + sizeof(uint32_t) * i, i < tables_ ? table : kNone);
            table = allocation_.After(table);
        }
        nextListed_ = table;
    }

    void WriteHeader() {
        output_.Write(header_.data(), header_.size());
        output_.Pad(sectorBytes_);
    }

    void WriteStream(const Element& element, size_t unit) {
        if (element.written != nullptr)
            output_.Write(element.written->data(), element.written->size());
        else
            CopyStream(*element.source);
        output_.Pad(unit);
    }

    void CopyStream(const CompoundStream& stream) {
        CompoundStreamReader reader(*original_, stream);
        uint64_t copied = 0;
        for (std::vector<uint8_t> piece; reader.Next(piece); copied += piece.size())
            output_.Write(piece.data(), piece.size());
        if (copied != stream.size) throw std::runtime_error("the file cannot be read");
    }

    void WriteShortStreams() {
        for (const Element& element : directory_.Elements())
            if (element.IsShort()) WriteStream(element, kShortSectorBytes);
        output_.Pad(sectorBytes_);
        uint32_t sector = 0;
        for (const Element& element : directory_.Elements()) {
            if (!element.IsShort()) continue;
            const auto end = static_cast<uint32_t>(sector + UnitCount(element.size, kShortSectorBytes));
            while (++sector < end)
                output_.WriteNumber(sector);
            output_.WriteNumber(kEndOfChain);
        }
        output_.Pad(sectorBytes_, kFreeByte);
    }

    void WriteDirectory() {
        for (const Element& element : directory_.Elements())
            output_.Write(element.record.data(), element.record.size());
        EntryBytes unused = {};
        for (const size_t link : {kLeft, kRight, kChild})
            PutLittleEndian(&unused[link], kNone);
        const size_t inSector = sectorBytes_ / kEntryBytes;
        for (size_t i = directory_.Elements().size(); i % inSector != 0; ++i)
            output_.Write(unused.data(), unused.size());
    }

    void WriteTable() {
        uint64_t sector = 0;
        for (const Allocation::Run& run : allocation_.Runs()) {
            const bool isChain = run.mark == kEndOfChain;
            for (uint64_t i = 0; i < run.count; ++i, ++sector) {
                if (sector == allocation_.Locked()) {
                    output_.WriteNumber(kEndOfChain);
                    ++sector;
                }
                const bool hasNext = isChain && i + 1 < run.count;
                output_.WriteNumber(hasNext ? allocation_.After(static_cast<uint32_t>(sector)) : run.mark);
            }
        }
        for (; sector < tables_ * NumbersInSector(); ++sector)
            output_.WriteNumber(kFreeSector);
    }

    void WriteLists() {
        uint64_t listed = kTablesInHeader;
        uint32_t list = listStart_;
        for (uint64_t i = 0; i < lists_; ++i) {
            for (size_t j = 0; j + 1 < NumbersInSector(); ++j, ++listed) {
                output_.WriteNumber(listed < tables_ ? nextListed_ : kNone);
                nextListed_ = allocation_.After(nextListed_);
            }
            list = allocation_.After(list);
            output_.WriteNumber(i + 1 < lists_ ? list : kEndOfChain);
        }
    }

    static constexpr char kFreeByte = '\xFF'; // four of them are kFreeSector

    const CompoundReader* original_;
    HeaderBytes header_;
    Directory directory_;
    size_t sectorBytes_;
    Allocation allocation_;
    Output output_;
    uint64_t tables_ = 0, lists_ = 0;
    uint32_t tableStart_ = 0, listStart_ = 0, nextListed_ = 0;
};

} // namespace

bool IsStreamName(std::u16string_view name) {
    return !name.empty() && name.size() <= kLongestName &&
           name.find_first_of(std::u16string_view(u"/\\:!\0", 5)) == std::u16string_view::npos;
}

void WriteCompoundFile(const CompoundReader* original, const StreamsToWrite& streams, const Append& append) {
    Writer(original, streams, append).Write();
}

} // namespace orlo
