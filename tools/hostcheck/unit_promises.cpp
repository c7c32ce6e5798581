// Numbers, lengths, angles and scales as text and back.

#include <algorithm>
#include <cmath>
#include <cstring>

#include "promise.h"

namespace {

constexpr char kUntouched = '\x5A';
constexpr uint16_t kUnitVariables[] = {kUnitDrawing, kUnitMillimeter, kUnitTextSize, kUnitPenWidth};

// A text shows a few digits only.
bool IsNear(double found, double expected) {
    return std::fabs(found - expected) <= 1e-3 * std::max(1.0, std::fabs(expected));
}

// Each value is written by write(value, buffer, size), which is read back by read(text, &value).
template <class Write, class Read>
void ThereAndBack(std::initializer_list<double> values, Write write, Read read) {
    for (const double value : values) {
        char text[64] = "";
        double found = -1;
        Expect(write(value, text, static_cast<int>(sizeof text)), "gave no text for %g", value);
        Expect(read(text, &found), "wrote %g as \"%s\" and does not read that", value, text);
        Expect(IsNear(found, value), "wrote %g as \"%s\" and reads that as %g", value, text, found);
        char tight[2] = {kUntouched, kUntouched};
        Expect(!write(12.25, tight, 1), "gave a text in a buffer of 1 byte");
        Expect(tight[1] == kUntouched, "wrote behind a buffer of 1 byte");
    }
}

template <class Read>
void LeavesAloneWhatIsNone(std::initializer_list<const char*> texts, Read read) {
    for (const char* text : texts) {
        double value = 77;
        Expect(!read(text, &value), "reads \"%s\" as %g", text, value);
        Expect(value == 77, "refuses \"%s\" and sets the value to %g", text, value);
    }
}

void LengthsThereAndBack(const Subject& s) {
    for (const uint16_t number : kUnitVariables)
        for (const uint16_t display : {uint16_t{0}, number})
            ThereAndBack(
                {0, 0.25, 1, 12.5, 3000},
                [&](double value, char* text, int size) {
                    return CALL(s.host, UnitsNumericToTextEx)(s.Units(), display, number, value, text, size,
                                                              0, 1);
                },
                [&](const char* text, double* value) {
                    return CALL(s.host, UnitsTextToNumericEx)(s.Units(), number, display, text, value);
                });
}

void RefusesNoLengths(const Subject& s) {
    LeavesAloneWhatIsNone({"", "abc", "1 2", "1 nosuchunit", "--1"}, [&](const char* text, double* value) {
        return CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitPenWidth, 0, text, value);
    });
}

// Makes the drawing one in centimetres, as far as the database knows them: in millimetres exchanged arguments would not show.
class Centimetres {
public:
    explicit Centimetres(const Subject& s) : subject_(s) {
        CALL(s.host, TableGetStringVar)(s.Units(), kUnitDrawing, before_, sizeof before_);
        CALL(s.host, TableSetStringVar)(s.Units(), kUnitDrawing, "cm");
        if (CALL(s.host, UnitsGetLUnitValue)(s.Units(), kUnitDrawing, &millimetres)) return;
        Restore();
        Expect(CALL(s.host, UnitsGetLUnitValue)(s.Units(), kUnitDrawing, &millimetres),
               "UnitsGetLUnitValue gave 0");
    }
    ~Centimetres() { Restore(); }
    Centimetres(const Centimetres&) = delete;
    Centimetres& operator=(const Centimetres&) = delete;

    double millimetres = 0; // of a drawing unit

private:
    void Restore() { CALL(subject_.host, TableSetStringVar)(subject_.Units(), kUnitDrawing, before_); }

    const Subject& subject_;
    char before_[64] = "";
};

void TakesTheNumberFirst(const Subject& s) {
    const Centimetres unit(s);
    double found = 0;
    Expect(CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitDrawing, kUnitMillimeter, "25", &found),
           "does not read 25");
    Expect(IsNear(found, 25 / unit.millimetres), "reads 25 mm as %g drawing units of %g mm", found,
           unit.millimetres);
}

void TakesTheDisplayFirst(const Subject& s) {
    const Centimetres unit(s);
    char text[64] = "";
    Expect(CALL(s.host, UnitsNumericToTextEx)(s.Units(), kUnitMillimeter, kUnitDrawing, 2.5, text,
                                              sizeof text, 0, 0),
           "gave no text");
    char* end = nullptr;
    const double found = CALL(s.host, StringToDouble)(0, text, &end);
    Expect(IsNear(found, 2.5 * unit.millimetres), "wrote 2.5 drawing units of %g mm as \"%s\" millimetres",
           unit.millimetres, text);
}

void PaperCountsInMillimetres(const Subject& s) {
    double found = 0;
    Expect(CALL(s.host, UnitsTextToNumericEx)(s.Units(), kUnitPenWidth, 0, "2 mm", &found) &&
               IsNear(found, 2),
           "reads 2 mm as %g", found);
}

void UnitsHaveLengths(const Subject& s) {
    for (const uint16_t variable : kUnitVariables) {
        double millimetres = 0;
        Expect(CALL(s.host, UnitsGetLUnitValue)(s.Units(), variable, &millimetres) && millimetres > 0,
               "the unit of 0x%X has %g mm", variable, millimetres);
        Expect(variable != kUnitMillimeter || millimetres == 1, "a millimetre has %g mm", millimetres);
    }
    double value = 77;
    Expect(!CALL(s.host, UnitsGetLUnitValue)(s.Units(), 1, &value) && value == 77, "the unit of 1 has %g mm",
           value);
}

void DrawingLengthsThereAndBack(const Subject& s) {
    const auto space = CALL(s.host, DrawingGetCoordSpace)(s.drawing);
    for (const int kind : {0, 1}) {
        if (kind == 1 && space == kSpaceDevice) continue; // has no text sizes
        ThereAndBack(
            {0, 0.25, 1, 12.5, 3000},
            [&](double value, char* text, int size) {
                return CALL(s.host, DrawingStdNumericToText)(s.drawing, value, text, size, kind);
            },
            [&](const char* text, double* value) {
                return CALL(s.host, DrawingStdTextToNumeric)(s.drawing, text, value, kind);
            });
    }
}

void RefusesNoDrawingLengths(const Subject& s) {
    LeavesAloneWhatIsNone({"", "abc", "1 2"}, [&](const char* text, double* value) {
        return CALL(s.host, DrawingStdTextToNumeric)(s.drawing, text, value, 0);
    });
}

uint16_t TextUnitIn(uint16_t space) {
    return space == kSpaceWorld ? kUnitDrawing : kUnitTextSize;
}

void LengthsOfSpacesThereAndBack(const Subject& s) {
    for (const uint16_t space : {uint16_t{kSpaceWorld}, uint16_t{kSpacePaper}})
        ThereAndBack(
            {0, 0.25, 1, 12.5, 3000},
            [&](double value, char* text, int size) {
                return CALL(s.host, DrawingStdNumericToTextEx)(s.drawing, value, text, size, space,
                                                               TextUnitIn(space));
            },
            [&](const char* text, double* value) {
                return CALL(s.host, DrawingStdTextToNumericEx)(s.drawing, text, value, space,
                                                               TextUnitIn(space));
            });
}

void DevicesHaveNoLengths(const Subject& s) {
    double value = 77;
    char text[8];
    Expect(!CALL(s.host, DrawingStdTextToNumericEx)(s.drawing, "1", &value, kSpaceDevice, kUnitTextSize) &&
               value == 77,
           "reads 1 as %g in the space of a device", value);
    Expect(!CALL(s.host, DrawingStdNumericToTextEx)(s.drawing, 1, text, sizeof text, kSpaceDevice,
                                                    kUnitTextSize),
           "writes 1 in the space of a device");
}

void HasASpace(const Subject& s) {
    const uint16_t space = CALL(s.host, DrawingGetCoordSpace)(s.drawing);
    Expect(space <= kSpaceDevice, "gave %u", space);
}

void AnglesThereAndBack(const Subject& s) {
    ThereAndBack(
        {0, 0.5, 1, 3},
        [&](double value, char* text, int size) {
            return CALL(s.host, DrawingStdAngleToText)(s.drawing, value, text, size, 0);
        },
        [&](const char* text, double* value) {
            return CALL(s.host, DrawingStdTextToAngle)(s.drawing, text, value, 0);
        });
}

void RefusesNoAngles(const Subject& s) {
    LeavesAloneWhatIsNone({"", "abc", "1 2"}, [&](const char* text, double* value) {
        return CALL(s.host, DrawingStdTextToAngle)(s.drawing, text, value, 0);
    });
}

void CountsInItsAngularSystem(const Subject& s) {
    constexpr double kRightAngle = 1.5707963267948966;
    constexpr const char* kRightAngles[] = {"90", "90", "100", "1.5707963", nullptr};
    const uint16_t system = CALL(s.host, UnitsGetAngularSystem)(s.Units());
    Expect(system <= 4, "gave %u", system);
    double found = 0;
    if (const char* text = kRightAngles[system])
        Expect(CALL(s.host, DrawingStdTextToAngle)(s.drawing, text, &found, 0) && IsNear(found, kRightAngle),
               "system %u, and \"%s\" is %g", system, text, found);
}

void ScalesThereAndBack(const Subject& s) {
    for (const double scale : {1.0, 48.0, 0.125, 2500.0}) {
        char text[64] = "";
        Expect(CALL(s.host, UnitsMakeScaleString)(s.Units(), scale, text, sizeof text), "gave no text for %g",
               scale);
        const double found = CALL(s.host, UnitsGetScaleValue)(s.Units(), text);
        Expect(IsNear(found, scale), "wrote %g as \"%s\" and reads that as %g", scale, text, found);
    }
}

void RefusesNoScales(const Subject& s) {
    for (const char* text : {"", "abc", "1 : 0", "1 :"}) {
        const double found = CALL(s.host, UnitsGetScaleValue)(s.Units(), text);
        Expect(found == 0.0, "reads \"%s\" as %g", text, found);
    }
}

void KeepsItsScale(const Subject& s) {
    char before[64] = "", after[64] = "";
    Expect(CALL(s.host, DrawingGetScaleString)(s.drawing, before, sizeof before),
           "DrawingGetScaleString gave 0");
    Expect(!CALL(s.host, DrawingSetScaleString)(s.drawing, "abc"), "takes \"abc\"");
    CALL(s.host, DrawingGetScaleString)(s.drawing, after, sizeof after);
    Expect(std::strcmp(before, after) == 0, "refuses \"abc\", and has \"%s\" for \"%s\"", after, before);
    Expect(CALL(s.host, DrawingSetScaleString)(s.drawing, "1 : 48"), "refuses \"1 : 48\"");
    CALL(s.host, DrawingGetScaleString)(s.drawing, after, sizeof after);
    CALL(s.host, DrawingSetScaleString)(s.drawing, before);
    Expect(std::strcmp(after, "1 : 48") == 0, "has \"%s\" for \"1 : 48\"", after);
}

std::string NumberText(const Subject& s, double value, int exponentForm) {
    char text[33];
    text[32] = kUntouched;
    CALL(s.host, DoubleToString)(0, value, 6, text, 0, exponentForm, 1);
    Expect(text[32] == kUntouched && std::memchr(text, '\0', 32), "wrote more than 32 bytes for %g", value);
    return text;
}

void NumbersThereAndBack(const Subject& s) {
    for (const double value : {0.0, 1.0, -2.5, 1 / 3.0, 123456.0, 0.00012}) {
        const std::string text = NumberText(s, value, 0);
        char* end = nullptr;
        const double found = CALL(s.host, StringToDouble)(0, text.c_str(), &end);
        Expect(end == text.c_str() + text.size(), "wrote %g as \"%s\" and does not read that to its end",
               value, text.c_str());
        Expect(std::fabs(found - value) <= 1e-5 * std::fabs(value), "wrote %g as \"%s\"", value,
               text.c_str());
    }
}

void WritesExponentForm(const Subject& s) {
    const std::string text = NumberText(s, 2.5e20, 1);
    const double found = CALL(s.host, StringToDouble)(0, text.c_str(), nullptr);
    Expect(text.find_first_of("eE") != std::string::npos && found == 2.5e20, "wrote 2.5e20 as \"%s\"",
           text.c_str());
}

void WritesNoTrailingZeros(const Subject& s) {
    const std::string text = NumberText(s, 2.5, 0), whole = NumberText(s, 100, 0);
    Expect(text.size() == 3 && whole == "100", "wrote 2.5 as \"%s\", and 100 as \"%s\"", text.c_str(),
           whole.c_str());
}

void ReadsTheNumberOnly(const Subject& s) {
    const char* text = "  2 x";
    char* end = nullptr;
    const double found = CALL(s.host, StringToDouble)(0, text, &end);
    Expect(found == 2 && end == text + 3, "reads \"%s\" as %g, to character %td", text, found, end - text);
    for (const char* none : {"", "abc", "nan", "inf", "0x10", "1e999"}) {
        const double value = CALL(s.host, StringToDouble)(0, none, &end);
        const bool hexadecimal = none[1] == 'x' && value == 0 && end == none + 1; // the zero in front
        Expect((value == 0 && end == none) || hexadecimal, "reads \"%s\" as %g, to character %td", none,
               value, end - none);
    }
}

constexpr Promise kRows[] = {
    {"StringToDouble", "reads what DoubleToString has written", NumbersThereAndBack},
    {"StringToDouble", "reads the number at the start and gives its end; none where there is none",
     ReadsTheNumberOnly},
    {"DoubleToString", "writes mantissa and exponent where that is wanted", WritesExponentForm},
    {"DoubleToString", "writes no trailing zeros", WritesNoTrailingZeros},
    {"UnitsTextToNumericEx", "reads what UnitsNumericToTextEx has written, to the same number",
     LengthsThereAndBack},
    {"UnitsTextToNumericEx", "gives 0 for what is no length, with the value left alone", RefusesNoLengths},
    {"UnitsTextToNumericEx", "takes the variable of the number before that of the text", TakesTheNumberFirst},
    {"UnitsNumericToTextEx", "takes the variable of the text before that of the number",
     TakesTheDisplayFirst},
    {"UnitsTextToNumericEx", "gives millimetres for a length on paper", PaperCountsInMillimetres},
    {"UnitsGetLUnitValue", "gives the millimetres of the four units, and 0 for another variable",
     UnitsHaveLengths},
    {"DrawingStdTextToNumeric", "reads what DrawingStdNumericToText has written, lengths and text sizes",
     DrawingLengthsThereAndBack},
    {"DrawingStdTextToNumeric", "gives 0 for what is no length, with the value left alone",
     RefusesNoDrawingLengths},
    {"DrawingStdTextToNumericEx",
     "reads what DrawingStdNumericToTextEx has written, in the world and on paper",
     LengthsOfSpacesThereAndBack},
    {"DrawingStdTextToNumericEx", "and DrawingStdNumericToTextEx give 0 in the space of a device",
     DevicesHaveNoLengths},
    {"DrawingGetCoordSpace", "gives one of the three spaces", HasASpace},
    {"DrawingStdTextToAngle", "reads what DrawingStdAngleToText has written", AnglesThereAndBack},
    {"DrawingStdTextToAngle", "gives 0 for what is no angle, with the value left alone", RefusesNoAngles},
    {"UnitsGetAngularSystem", "gives the system that angles are read in", CountsInItsAngularSystem},
    {"UnitsGetScaleValue", "reads what UnitsMakeScaleString has written", ScalesThereAndBack},
    {"UnitsGetScaleValue", "gives 0.0 for what is no scale", RefusesNoScales},
    {"DrawingSetScaleString",
     "takes a scale, and DrawingGetScaleString gives it as it was set; refuses others", KeepsItsScale},
};

} // namespace

const Topic kUnitPromises = TopicOf(kRows);
