// A page of the host's own properties, made from a table.

#include <utility>

#include <orlo.h>

constexpr unsigned kRoomPage = 100; // identifies the page in its sheet

// The area is not a property of the database; the host calculates it.
FieldRow AreaRow(double (*areaOf)(GraphicStruct*)) {
    FieldRow row;
    row.kind = FieldKind::Number;
    row.label = "Area:";
    row.unit = "m\xB2";
    row.readOnly = true;
    row.get = [areaOf](GraphicStruct* graphic, FieldValue& value) {
        value.number = areaOf(graphic);
        return value.number > 0; // false: this graphic has no area
    };
    return row;
}

// Call this before the sheet opens. It adds the page if a room is selected.
void AddRoomPage(CGraphicPropertySheet* sheet, bool (*isRoom)(GraphicStruct*), double (*areaOf)(GraphicStruct*)) {
    FieldTable table;
    table.caption = "Room";
    table.accepts = isRoom;
    table.rows = {{FieldKind::Text, "&Number:", "RoomNumber"},
                  {FieldKind::Length, "&Height:", "RoomHeight", "Size"},
                  AreaRow(areaOf),
                  {FieldKind::Choice, "&Fire rating", "FireRating"},
                  {FieldKind::Lines, "Re&marks:", "Remarks"}};
    table.rows[1].min = 2.0; // drawing units
    table.rows[1].max = 10.0;
    table.rows[2].group = "Size";
    table.rows[3].choices = {"None", "30 minutes", "60 minutes"};
    table.rows[0].help = "As on the floor plan";
    table.rows[0].check = [](const FieldValue& value) {
        return value.text.empty() ? "Please enter the number of the room." : "";
    };
    AddFieldPage(sheet, kRoomPage, std::move(table));
}
