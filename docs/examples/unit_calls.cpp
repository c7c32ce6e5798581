// Shows the order of arguments of the functions that convert between numbers and text.

#include <orlo.h>

// The drawing is in centimeters; its variables kUnitPenWidth and kUnitTextSize name "mm".
void UnitCalls(DrawingStruct* drawing) {
    TableStruct* units = drawing->pUnits;
    double value;
    char text[256];
    // Reading: the variable of the number before that of the text. 25 mm are 2.5 drawing units.
    UnitsTextToNumericEx(units, kUnitDrawing, kUnitMillimeter, "25", &value);
    // Writing: the variable of the text before that of the number. "25 mm".
    UnitsNumericToTextEx(units, kUnitMillimeter, kUnitDrawing, 2.5, text, sizeof text, 0, 1);
    // A length on paper is always in millimeters: 10, and "10 mm".
    UnitsTextToNumericEx(units, kUnitPenWidth, 0, "1 cm", &value);
    UnitsNumericToTextEx(units, 0, kUnitPenWidth, 10, text, sizeof text, 0, 1);
    // A length in the drawing: 2.5, and "2.5", since a number without a unit is in drawing units.
    DrawingStdTextToNumeric(drawing, "25 mm", &value, 0);
    DrawingStdNumericToText(drawing, 2.5, text, sizeof text, 0);
    // A text size on paper; the space comes before the unit: 3, and "3 mm".
    DrawingStdTextToNumericEx(drawing, "3 mm", &value, kSpacePaper, kUnitTextSize);
    DrawingStdNumericToTextEx(drawing, 3, text, sizeof text, kSpacePaper, kUnitTextSize);
    // An angle in degrees: 1.570796, and "90".
    DrawingStdTextToAngle(drawing, "90", &value, 0);
    DrawingStdAngleToText(drawing, value, text, sizeof text, 0);
    // A scale: 48, and "1 : 48". 0.0 means that the text is not a scale.
    value = UnitsGetScaleValue(units, "1 : 48");
    UnitsMakeScaleString(units, 48, text, sizeof text);
    // A plain number and its end; six digits, as mantissa and exponent if exponentForm is 1.
    char* end;
    value = StringToDouble(0, "2.5", &end);
    DoubleToString(0, value, 6, text, 0, 0, 1);
}
