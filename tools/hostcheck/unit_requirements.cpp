// Requirements of the conversions between text and numbers, lengths, angles and scales.

#include <algorithm>
#include <cmath>
#include <cstring>

#include "requirement.h"

namespace {

constexpr char kUntouched = '\x5A';
constexpr uint16_t kUnitVariables[] = {kUnitDrawing, kUnitMillimeter, kUnitTextSize, kUnitPenWidth};

// Texts have a few digits only, so that values that were written and read differ a little.
bool IsNear(double found, double expected) {
    return std::fabs(found - expected) <= 1e-3 * std::max(1.0, std::fabs(expected));
}

// Requires that read(text, &value) returns each value that write(value, buffer, size) has written.
template <class Write, class Read>
void RequireRoundTrip(std::initializer_list<double> values, Write write, Read read) {
    for (const double value : values) {
        char text[64] = "";
        double found = -1;
        Require(write(value, text, static_cast<int>(sizeof text)), "did not write %g", value);
        Require(read(text, &found), "wrote %g as \"%s\", but cannot read that text", value, text);
        Require(IsNear(found, value), "wrote %g as \"%s\", but read that text as %g", value, text, found);
        char tight[2] = {kUntouched, kUntouched};
        Require(!write(12.25, tight, 1), "returned non-zero for a buffer of 1 byte");
        Require(tight[1] == kUntouched, "wrote past the end of a buffer of 1 byte");
    }
}

template <class Read>
void RequireRejected(std::initializer_list<const char*> texts, Read read) {
    Violations violations;
    for (const char* text : texts)
        violations.Collect([&] {
            double value = 77;
            Require(!read(text, &value), "read \"%s\" as %g", text, value);
            Require(value == 77, "rejected \"%s\", but set the value to %g", text, value);
        });
    violations.Report();
}

void LengthsRoundTrip(const Subject& s) {
    for (const uint16_t number : kUnitVariables)
        for (const uint16_t display : {uint16_t{0}, number})
            RequireRoundTrip(
                {0, 0.25, 1, 12.5, 3000},
                [&](double value, char* text, int size) {
                    return CALL(s.host, UnitsNumericToTextEx)(s.Units(), display, number, value, text, size, 0, 1);
                },
                [&](const char* text, double* value) {
                    return CALL(s.host, UnitsTextToNumericEx)(s.Units(), number, display, text, value);
                });
}

void RejectsInvalidLengths(const Subject& s) {
    RequireRejected({"", "abc", "1 2", "1 nosuchunit", "nan", "inf", "1e999"}, [&](const char* text, double* value) {
        return CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitPenWidth, 0, text, value);
    });
}

// Sets the unit of the drawing to centimeters, if the database supports them: swapped arguments would not be noticed in
// millimeters. The destructor restores the unit.
class Centimeters {
public:
    explicit Centimeters(const Subject& s) : subject_(s) {
        CALL(s.host, TableGetStringVar)(s.Units(), kUnitDrawing, previous_, sizeof previous_);
        CALL(s.host, TableSetStringVar)(s.Units(), kUnitDrawing, "cm");
        if (Measure()) return;
        Restore();
        Require(Measure(), "cannot read \"1 mm\" as a length of the drawing");
    }
    ~Centimeters() { Restore(); }
    Centimeters(const Centimeters&) = delete;
    Centimeters& operator=(const Centimeters&) = delete;

    double millimeters = 0; // in a drawing unit

private:
    bool Measure() {
        double units = 0;
        if (!CALL(subject_.host, UnitsTextToNumericEx)(subject_.Units(), kUnitDrawing, 0, "1 mm", &units)) return false;
        millimeters = 1 / units;
        return units > 0;
    }
    void Restore() { CALL(subject_.host, TableSetStringVar)(subject_.Units(), kUnitDrawing, previous_); }

    const Subject& subject_;
    char previous_[64] = "";
};

void HasTheNumberFirst(const Subject& s) {
    const Centimeters unit(s);
    double found = 0;
    Require(CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitDrawing, kUnitMillimeter, "25", &found),
            "cannot read \"25\"");
    Require(IsNear(found, 25 / unit.millimeters), "read 25 mm as %g drawing units of %g mm", found, unit.millimeters);
}

void HasTheDisplayFirst(const Subject& s) {
    const Centimeters unit(s);
    char text[64] = "";
    Require(CALL(s.host, UnitsNumericToTextEx)(s.Units(), kUnitMillimeter, kUnitDrawing, 2.5, text, sizeof text, 0, 0),
            "did not write the length");
    char* end = nullptr;
    const double found = CALL(s.host, StringToDouble)(0, text, &end);
    Require(IsNear(found, 2.5 * unit.millimeters), "wrote 2.5 drawing units of %g mm as \"%s\" millimeters",
            unit.millimeters, text);
}

void PaperIsInMillimeters(const Subject& s) {
    double found = 0;
    Require(CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitPenWidth, 0, "2 mm", &found) && IsNear(found, 2),
            "read 2 mm as %g", found);
}

void UnitsHaveLengths(const Subject& s) {
    for (const uint16_t variable : kUnitVariables) {
        double millimeters = 0;
        RequireNoStub(CALL(s.host, UnitsGetLUnitValue)(s.Units(), variable, &millimeters), "UnitsGetLUnitValue");
        Require(millimeters > 0, "the unit of variable 0x%X is %g mm", variable, millimeters);
        Require(variable != kUnitMillimeter || millimeters == 1, "a millimeter is %g mm", millimeters);
    }
    double value = 77;
    Require(!CALL(s.host, UnitsGetLUnitValue)(s.Units(), 1, &value) && value == 77,
            "the unit of variable 1, which does not exist, is %g mm", value);
}

bool EndsWith(const std::string& text, const char* end) {
    const size_t length = std::strlen(end);
    return text.size() >= length && text.compare(text.size() - length, length, end) == 0;
}

void NamesTheUnit(const Subject& s) {
    for (const int suffix : {0, 1}) {
        char text[64] = "";
        Require(CALL(s.host, UnitsNumericToTextEx)(s.Units(), kUnitMillimeter, kUnitMillimeter, 2.5, text, sizeof text,
                                                   0, suffix),
                "did not write 2.5 mm");
        Require(EndsWith(text, "mm") == (suffix == 1), "wrote \"%s\" with suffix %d", text, suffix);
    }
}

// A number without a unit, in the drawing's space: drawing units or, for text sizes on paper, their unit.
void NumbersAreInDrawingUnits(const Subject& s) {
    const auto space = CALL(s.host, DrawingGetCoordSpace)(s.Drawing());
    for (const int kind : {0, 1}) {
        if (space != kSpaceWorld && kind == 1) continue;
        double found = 0;
        Require(CALL(s.host, DrawingStdTextToNumeric)(s.Drawing(), "3", &found, kind) && IsNear(found, 3),
                "read \"3\" as %g with kind %d", found, kind);
        char text[64] = "";
        CALL(s.host, DrawingStdNumericToText)(s.Drawing(), 3, text, sizeof text, kind);
        found = CALL(s.host, StringToDouble)(0, text, nullptr);
        Require(IsNear(found, 3), "wrote 3 as \"%s\" with kind %d", text, kind);
    }
}

void TextSizesOnPaperAreInMillimeters(const Subject& s) {
    double found = 0;
    Require(CALL(s.host, DrawingStdTextToNumericEx)(s.Drawing(), "3 mm", &found, kSpacePaper, kUnitTextSize) &&
                IsNear(found, 3),
            "read \"3 mm\" as %g", found);
    char text[64] = "";
    Require(CALL(s.host, DrawingStdNumericToTextEx)(s.Drawing(), 3, text, sizeof text, kSpacePaper, kUnitMillimeter) &&
                IsNear(CALL(s.host, StringToDouble)(0, text, nullptr), 3),
            "wrote 3 mm as \"%s\"", text);
}

void DrawingLengthsRoundTrip(const Subject& s) {
    const auto space = CALL(s.host, DrawingGetCoordSpace)(s.Drawing());
    for (const int kind : {0, 1}) {
        if (kind == 1 && space == kSpaceDevice) continue; // text sizes cannot be converted
        RequireRoundTrip(
            {0, 0.25, 1, 12.5, 3000},
            [&](double value, char* text, int size) {
                return CALL(s.host, DrawingStdNumericToText)(s.Drawing(), value, text, size, kind);
            },
            [&](const char* text, double* value) {
                return CALL(s.host, DrawingStdTextToNumeric)(s.Drawing(), text, value, kind);
            });
    }
}

void RejectsInvalidDrawingLengths(const Subject& s) {
    RequireRejected({"", "abc", "1 2", "nan", "inf", "1e999"}, [&](const char* text, double* value) {
        return CALL(s.host, DrawingStdTextToNumeric)(s.Drawing(), text, value, 0);
    });
}

uint16_t TextUnitIn(uint16_t space) {
    return space == kSpaceWorld ? kUnitDrawing : kUnitTextSize;
}

void LengthsInSpacesRoundTrip(const Subject& s) {
    for (const uint16_t space : {uint16_t{kSpaceWorld}, uint16_t{kSpacePaper}})
        RequireRoundTrip(
            {0, 0.25, 1, 12.5, 3000},
            [&](double value, char* text, int size) {
                return CALL(s.host, DrawingStdNumericToTextEx)(s.Drawing(), value, text, size, space,
                                                               TextUnitIn(space));
            },
            [&](const char* text, double* value) {
                return CALL(s.host, DrawingStdTextToNumericEx)(s.Drawing(), text, value, space, TextUnitIn(space));
            });
}

void DevicesHaveNoLengths(const Subject& s) {
    double value = 77;
    char text[8];
    Require(!CALL(s.host, DrawingStdTextToNumericEx)(s.Drawing(), "1", &value, kSpaceDevice, kUnitTextSize) &&
                value == 77,
            "read \"1\" as %g in device space", value);
    Require(!CALL(s.host, DrawingStdNumericToTextEx)(s.Drawing(), 1, text, sizeof text, kSpaceDevice, kUnitTextSize),
            "wrote 1 in device space");
}

void HasASpace(const Subject& s) {
    const uint16_t space = CALL(s.host, DrawingGetCoordSpace)(s.Drawing());
    Require(space <= kSpaceDevice, "returned %u", space);
}

void AnglesRoundTrip(const Subject& s) {
    RequireRoundTrip(
        {0, 0.5, 1, 3},
        [&](double value, char* text, int size) {
            return CALL(s.host, DrawingStdAngleToText)(s.Drawing(), value, text, size, 0);
        },
        [&](const char* text, double* value) {
            return CALL(s.host, DrawingStdTextToAngle)(s.Drawing(), text, value, 0);
        });
}

void RejectsInvalidAngles(const Subject& s) {
    RequireRejected({"", "abc", "1 2", "nan", "inf", "1e999"}, [&](const char* text, double* value) {
        return CALL(s.host, DrawingStdTextToAngle)(s.Drawing(), text, value, 0);
    });
}

void ReturnsTheAngularSystem(const Subject& s) {
    constexpr double kRightAngle = 1.5707963267948966;
    constexpr const char* kRightAngles[] = {"90", "90", "100", "1.5707963", nullptr};
    const uint16_t system = CALL(s.host, UnitsGetAngularSystem)(s.Units());
    Require(system <= 4, "returned %u", system);
    double found = 0;
    if (const char* text = kRightAngles[system])
        Require(CALL(s.host, DrawingStdTextToAngle)(s.Drawing(), text, &found, 0) && IsNear(found, kRightAngle),
                "in system %u, \"%s\" was read as %g instead of a right angle", system, text, found);
}

void ScalesRoundTrip(const Subject& s) {
    for (const double scale : {1.0, 48.0, 0.125, 2500.0}) {
        char text[64] = "";
        RequireNoStub(CALL(s.host, UnitsMakeScaleString)(s.Units(), scale, text, sizeof text), "UnitsMakeScaleString");
        const double found = CALL(s.host, UnitsGetScaleValue)(s.Units(), text);
        RequireNoStub(found != 0, "UnitsGetScaleValue");
        Require(IsNear(found, scale), "wrote %g as \"%s\", but read that text as %g", scale, text, found);
    }
}

void RejectsInvalidScales(const Subject& s) {
    for (const char* text : {"", "abc", "1 : 0", "1 :"}) {
        const double found = CALL(s.host, UnitsGetScaleValue)(s.Units(), text);
        Require(found == 0.0, "read \"%s\" as %g", text, found);
    }
}

void SetsTheScale(const Subject& s) {
    char before[64] = "", after[64] = "";
    RequireNoStub(CALL(s.host, DrawingGetScaleString)(s.Drawing(), before, sizeof before), "DrawingGetScaleString");
    Require(!CALL(s.host, DrawingSetScaleString)(s.Drawing(), "abc"), "accepted \"abc\"");
    CALL(s.host, DrawingGetScaleString)(s.Drawing(), after, sizeof after);
    Require(std::strcmp(before, after) == 0, "rejected \"abc\", but the scale is \"%s\" instead of \"%s\"", after,
            before);
    RequireNoStub(CALL(s.host, DrawingSetScaleString)(s.Drawing(), "1 : 48"), "DrawingSetScaleString");
    CALL(s.host, DrawingGetScaleString)(s.Drawing(), after, sizeof after);
    CALL(s.host, DrawingSetScaleString)(s.Drawing(), before);
    Require(std::strcmp(after, "1 : 48") == 0, "returned \"%s\" after setting \"1 : 48\"", after);
}

std::string NumberText(const Subject& s, double value, int exponentForm) {
    char text[33];
    text[32] = kUntouched;
    CALL(s.host, DoubleToString)(0, value, 6, text, 0, exponentForm, 1);
    Require(text[32] == kUntouched && std::memchr(text, '\0', 32), "wrote more than 32 bytes for %g", value);
    return text;
}

void NumbersRoundTrip(const Subject& s) {
    for (const double value : {0.0, 1.0, -2.5, 1 / 3.0, 123456.0, 0.00012}) {
        const std::string text = NumberText(s, value, 0);
        char* end = nullptr;
        const double found = CALL(s.host, StringToDouble)(0, text.c_str(), &end);
        Require(end == text.c_str() + text.size(), "wrote %g as \"%s\", but did not read that text to its end", value,
                text.c_str());
        Require(std::fabs(found - value) <= 1e-5 * std::fabs(value), "wrote %g as \"%s\"", value, text.c_str());
    }
}

void WritesTheDigits(const Subject& s) {
    for (const int digits : {6, 15}) {
        char text[33] = "";
        CALL(s.host, DoubleToString)(0, 1 / 3.0, digits, text, 0, 0, 1);
        const double off = std::fabs(CALL(s.host, StringToDouble)(0, text, nullptr) - 1 / 3.0);
        Require(off <= std::pow(10, -digits), "wrote a third with %d digits as \"%s\"", digits, text);
    }
}

void WritesExponentForm(const Subject& s) {
    const std::string text = NumberText(s, 2.5e20, 1);
    const double found = CALL(s.host, StringToDouble)(0, text.c_str(), nullptr);
    Require(text.find_first_of("eE") != std::string::npos && found == 2.5e20, "wrote 2.5e20 as \"%s\"", text.c_str());
}

void WritesNoTrailingZeros(const Subject& s) {
    const std::string text = NumberText(s, 2.5, 0), whole = NumberText(s, 100, 0);
    Require(text.size() == 3 && whole == "100", "wrote 2.5 as \"%s\" and 100 as \"%s\"", text.c_str(), whole.c_str());
}

void ReadsTheNumberOnly(const Subject& s) {
    const char* text = "  2 x";
    char* end = nullptr;
    const double found = CALL(s.host, StringToDouble)(0, text, &end);
    Require(found == 2 && end == text + 3, "read \"%s\" as %g, up to character %td", text, found, end - text);
    for (const char* none : {"", "abc", "nan", "inf", "1e999"}) {
        const double value = CALL(s.host, StringToDouble)(0, none, &end);
        Require(value == 0 && end == none, "read \"%s\" as %g, up to character %td", none, value, end - none);
    }
}

constexpr Requirement kRows[] = {
    {"StringToDouble", "reads what DoubleToString writes", NumbersRoundTrip},
    {"StringToDouble", "reads the number at the start and stores its end; 0 if there is none", ReadsTheNumberOnly},
    {"DoubleToString", "writes as many significant digits as requested", WritesTheDigits},
    {"DoubleToString", "uses exponential notation if exponentForm is 1", WritesExponentForm},
    {"DoubleToString", "writes no trailing zeros", WritesNoTrailingZeros},
    {"UnitsTextToNumericEx", "reads what UnitsNumericToTextEx writes", LengthsRoundTrip},
    {"UnitsTextToNumericEx", "returns 0 if the text is not a length; the value is unchanged", RejectsInvalidLengths},
    {"UnitsTextToNumericEx", "takes the variable of the number before that of the text", HasTheNumberFirst},
    {"UnitsNumericToTextEx", "takes the variable of the text before that of the number", HasTheDisplayFirst},
    {"UnitsNumericToTextEx", "writes the name of the unit if suffix is 1", NamesTheUnit},
    {"UnitsTextToNumericEx", "returns millimeters for a length on paper", PaperIsInMillimeters},
    {"UnitsGetLUnitValue", "stores the millimeters of the four units; 0 for other variables", UnitsHaveLengths},
    {"DrawingStdTextToNumeric", "reads what DrawingStdNumericToText writes: lengths and text sizes",
     DrawingLengthsRoundTrip},
    {"DrawingStdTextToNumeric", "returns 0 if the text is not a length; the value is unchanged",
     RejectsInvalidDrawingLengths},
    {"DrawingStdTextToNumeric",
     "and DrawingStdNumericToText use drawing units if there is no unit, also for text sizes",
     NumbersAreInDrawingUnits},
    {"DrawingStdTextToNumericEx", "and DrawingStdNumericToTextEx convert text sizes on paper from and to millimeters",
     TextSizesOnPaperAreInMillimeters},
    {"DrawingStdTextToNumericEx", "reads what DrawingStdNumericToTextEx writes, in world and paper space",
     LengthsInSpacesRoundTrip},
    {"DrawingStdTextToNumericEx", "and DrawingStdNumericToTextEx return 0 in device space", DevicesHaveNoLengths},
    {"DrawingGetCoordSpace", "returns one of the three spaces", HasASpace},
    {"DrawingStdTextToAngle", "reads what DrawingStdAngleToText writes", AnglesRoundTrip},
    {"DrawingStdTextToAngle", "returns 0 if the text is not an angle; the value is unchanged", RejectsInvalidAngles},
    {"UnitsGetAngularSystem", "returns the system in which angles are read", ReturnsTheAngularSystem},
    {"UnitsGetScaleValue", "reads what UnitsMakeScaleString writes", ScalesRoundTrip},
    {"UnitsGetScaleValue", "returns 0.0 if the text is not a scale", RejectsInvalidScales},
    {"DrawingSetScaleString", "sets a scale that DrawingGetScaleString returns; rejects others", SetsTheScale},
};

} // namespace

const Topic kUnitRequirements = TopicOf(kRows);
