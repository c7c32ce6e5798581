// Reads DXF documents (ASCII, R12 to 2018) and sets properties of their entities, without a drawing database and
// without windows. C++ only, in the static library drawcore_document, which is also built natively. All texts are
// UTF-8.
//
//   const dxf::DocumentReader plan(dxf::ReadBytes("plan.dxf"));
//   dxf::DocumentWriter changes(plan, {{"PenColor", "By Layer"}});
//   for (const dxf::EntityRef& entity : plan.Entities())
//       if (plan.Get(entity, "PenColor") == "Red") changes.Change(entity);
//   const std::string changed = changes.Finish();
//
// Properties have the names of orlo/host/words.h, in upper or lower case. Their values have the form that the pages of
// the sheet show: "By Layer", "0.5 mm", "Color 12", "#FF7F00".
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dxf {

struct Block;
struct Document;
struct Entity;

// Thrown if a file cannot be read. what() names the line if there is one: "line 12: group code 'x' is not a number".
class ReadError : public std::runtime_error {
public:
    ReadError(uint32_t line, const std::string& text);
    uint32_t Line() const { return line_; } // 0: the file as a whole
    const std::string& Text() const { return text_; }

private:
    uint32_t line_;
    std::string text_;
};

// Thrown if a value is not valid or cannot be stored in the file. what() is a message for users.
class SaveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Returns the bytes of a file. Throws ReadError without a line if it cannot be read.
std::string ReadBytes(const std::filesystem::path& path);

// Returns whether two names are equal, regardless of the case of the letters A to Z.
bool IsSameName(std::string_view a, std::string_view b);

// Resolves escapes: "\U+00C4" becomes an A with diaeresis, "\M+1835C" the character in its code page.
std::string ToDisplayText(std::string_view stored);

// The name of a record in messages.
struct RecordName {
    std::string kind;   // "LINE"
    std::string handle; // empty: none
    uint32_t line = 0;  // of the file, counted from 1
    std::string block;  // that contains it; empty: model space

    std::string Text() const; // "LINE 2F (line 1024)", "LINE 3A (line 512, block DOOR)"
};

// A part of the document that was omitted or repaired when it was read.
struct Warning {
    uint32_t line = 0; // of the file; 0: no particular line
    std::string text;
};

// The contents of a document. Names are as stored in the file, with escapes like \U+00C4; see ToDisplayText.
struct Contents {
    struct Layer {
        std::string name;
        int color = 7; // negative: the layer is off
        int flags = 0;
        std::string lineType;
        int32_t trueColor = -1; // 0xRRGGBB; -1: none
        int lineWeight = -3;    // 0.01 mm; -3: the default
        bool isPlotted = true;
        std::string colorText; // in the form of PenColor
    };
    struct LineType {
        std::string name;
        double patternLength = 0;
        std::vector<double> dashes; // positive a dash, negative a gap, 0 a dot
    };

    std::string version;                                       // "AC1015"; empty if the file does not state it
    std::map<std::string, uint64_t, std::less<>> entityCounts; // records of the ENTITIES section by type
    size_t blocks = 0;
    std::vector<Layer> layers;
    std::vector<LineType> lineTypes;
    std::optional<std::array<double, 4>> box; // of model space: left, bottom, right, top; none if it is empty
    std::vector<Warning> warnings;
};

// An entity of a document, valid as long as its reader.
class EntityRef {
    friend class DocumentReader;
    friend class DocumentWriter;
    EntityRef(const Entity& entity, const Block* block, const Entity* insertion = nullptr)
        : entity_(&entity), block_(block), insertion_(insertion) {}

    const Entity* entity_;
    const Block* block_;      // null: model space, or paper space
    const Entity* insertion_; // of an attribute, else null
};

class EntityExtents;
class EntityTexts;
class PropertyTexts;

class DocumentReader {
public:
    // Reads the bytes of a file. `progress` is called repeatedly with the completed share, 0 to 1000. Throws ReadError,
    // and any exception of `progress`.
    explicit DocumentReader(std::string bytes, const std::function<void(int permille)>& progress = {});
    ~DocumentReader();

    const std::string& Bytes() const { return bytes_; }
    Contents GetContents() const;

    // Returns the entities that have properties, in the order of the file: first those of model space, including the
    // attributes of its insertions, then those of the blocks.
    std::vector<EntityRef> Entities() const;
    // Returns the entities of one block; "" is model space. If there is no such block, throws SaveError with the names
    // of all blocks.
    std::vector<EntityRef> EntitiesOf(const std::string& block) const;
    // Returns the entities of paper space.
    std::vector<EntityRef> PaperEntities() const;
    RecordName NameOf(const EntityRef& entity) const;

    // Returns the names of all properties in the order in which they are set, since a width depends on its scale
    // system. The properties of the sheet are followed by Tag, Text (as stored, with control and inline codes),
    // BlockName, Position (in world coordinates), Scale and Rotation (of insertions). Tag and BlockName cannot be set.
    static std::vector<std::string> PropertyNames();
    // Returns the canonical spelling of the name, or nullopt if there is no such property.
    static std::optional<std::string> FindPropertyName(std::string_view name);

    // Has returns whether the entity has the property with the given canonical name; Get returns its value.
    static bool Has(const EntityRef& entity, std::string_view name);
    std::string Get(const EntityRef& entity, std::string_view name) const;
    // Returns the values of the named properties that the entity has.
    std::vector<std::pair<std::string, std::string>> GetAll(const EntityRef& entity,
                                                            const std::vector<std::string>& names) const;
    // Returns the text in the format of Get if it is a valid value for the entity; otherwise, returns it unchanged.
    std::string Normalized(const EntityRef& entity, std::string_view name, const std::string& text) const;
    // Returns the number that the text represents as a value of the entity, or nullopt if it is not a number.
    std::optional<double> NumberOf(const EntityRef& entity, std::string_view name, const std::string& text) const;
    // Returns the value, followed by " (varies)" if parts of a text have different values.
    std::string GetForDisplay(const EntityRef& entity, std::string_view name) const;
    // Returns whether entities of two documents have the same values for the properties of the sheet. Numbers may
    // differ by rounding errors.
    bool HasSameProperties(const EntityRef& entity, const DocumentReader& other, const EntityRef& otherEntity) const;
    // Returns the coordinates, lengths and texts of the entity as stored, for comparison: entities with the same shape
    // have equal lists.
    std::vector<std::string> ShapeOf(const EntityRef& entity) const;
    // Returns whether the entities are stored identically, byte for byte. Shape, texts and positions are then the same.
    bool IsStoredLike(const EntityRef& entity, const DocumentReader& other, const EntityRef& otherEntity) const;
    // Returns left, bottom, right and top in the entity's own space, or nullopt if no part of it is visible.
    std::optional<std::array<double, 4>> BoxOf(const EntityRef& entity) const;
    // Returns the insertion that an attribute belongs to, or nullopt for other entities.
    static std::optional<EntityRef> InsertionOf(const EntityRef& entity);

private:
    friend class DocumentWriter;

    enum class Space { model, paper };

    std::string_view Text() const;
    void AddEntities(const Block* block, std::vector<EntityRef>& to, Space space = Space::model) const;

    std::string bytes_;
    const std::unique_ptr<const Document> document_;
    const std::unique_ptr<const PropertyTexts> texts_;
    const std::unique_ptr<const EntityTexts> entityTexts_;
    const std::unique_ptr<EntityExtents> extents_;
};

// New values for a layer; values that are not set remain unchanged.
struct LayerValues {
    std::optional<bool> isOn, isFrozen, isLocked, isPlotted;
    std::optional<std::string> color;      // in the formats of PenColor, except By Layer and By Block
    std::optional<std::string> lineType;   // of the document, or Continuous
    std::optional<std::string> lineWeight; // "0.5 mm", one of the file format, or Default
    std::optional<std::string> name;       // the new name
};

// Changes a document: only the groups that contain a changed value differ afterward. Values without a DXF group are
// stored in extended data (XDATA) of the application ORLO.
class DocumentWriter {
public:
    using Values = std::vector<std::pair<std::string, std::string>>; // by the names of properties

    // Change sets these values. Throws SaveError if one of them is not valid, even if no entity has the property. The
    // reader must outlive the writer.
    DocumentWriter(const DocumentReader& reader, const Values& values);
    ~DocumentWriter();

    // Sets the values of the properties that the entity has. Returns whether it was changed. Must be called at most
    // once per entity. Throws SaveError, with the name of the entity, if the file cannot contain a value.
    bool Change(const EntityRef& entity);
    // Does the same with these values instead of those passed to the constructor.
    bool Change(const EntityRef& entity, const Values& values);
    // Changes a layer of the document, or adds it if it does not exist. Returns whether anything was changed. Must be
    // called at most once per layer, before entities are changed; after a layer has been renamed, entities cannot be
    // changed. Throws SaveError.
    bool ChangeLayer(const std::string& name, const LayerValues& wanted);
    // Returns a message for users for each property that is now stored in extended data, where other programs do not
    // show it.
    std::vector<std::string> Notes() const;
    // Verifies the changed file by reading it and returns its bytes. Throws SaveError if an entity does not have the
    // requested values. Must be the last call.
    std::string Finish();

private:
    struct Parts;
    const std::unique_ptr<Parts> parts_;
};

} // namespace dxf
