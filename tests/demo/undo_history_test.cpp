// Undo of changes to graphics, layers and styles in chronological order.

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "drawcore/layer.h"
#include "drawcore/undo.h"
#include "orlo/host/graphic.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "orlo/resources/resource.h"

namespace {

class History : public Viewer {
protected:
    // Returns the width of the red line.
    double width() { return *orlo::host::ReadProperty<double>(red, kPropPenWidth); }
    void SetWidth(double inches) {
        document().Change([&] { ::GraphicSetPenWidth(red, inches); });
    }
    // Changes the state of the first layer, "0", in the dialog.
    void Lock() {
        user.InDialog([&] { user.Key('L', UserInput::kControl); },
                      [&](HWND) {
                          user.Mnemonic('k');
                          user.Key(VK_RETURN);
                      });
    }
    bool IsLocked() { return (::LayerGetFlags(document().Drawing(), 1) & kLayerLocked) != 0; }
    void CreateStyle(const std::string& name) {
        user.Key('A', UserInput::kControl);
        user.InDialog([&] { user.Key('N', UserInput::kControl); },
                      [&](HWND) {
                          user.Type(name);
                          for (int i = 0; i < 3; ++i)
                              user.Key(VK_RETURN);
                      });
    }
    std::string StylesOfGraphics() {
        std::string text;
        for (const auto& [name, count] : Properties().Values(kPropStyleTree))
            text += name + ":" + std::to_string(count) + " ";
        return text;
    }
    void Undo() { user.Key('Z', UserInput::kControl); }
    void Redo() { user.Key('Y', UserInput::kControl); }

    GraphicStruct* red = document().Selectable().front();
};

TEST_F(History, LayersAreUndoneInTheOrderOfTheChanges) {
    SetWidth(0.1);
    Lock();
    ASSERT_TRUE(IsLocked());
    SetWidth(0.2);
    EXPECT_EQ(document().UndoSteps(), 3);
    Undo();
    EXPECT_TRUE(IsLocked());
    Undo();
    EXPECT_FALSE(IsLocked());
    EXPECT_EQ(width(), 0.1);
    Undo();
    EXPECT_EQ(width(), 0);
    EXPECT_EQ(document().UndoSteps(), 0);
    EXPECT_NE(WindowText(frame->m_hWnd)[0], '*');
    Redo();
    Redo();
    EXPECT_TRUE(IsLocked());
    Redo();
    EXPECT_EQ(document().RedoSteps(), 0);
    Undo();
    Undo();
    // After another change, undone changes cannot be redone, neither here nor in the database.
    SetWidth(0.5);
    EXPECT_EQ(document().RedoSteps(), 0);
}

TEST_F(History, LayerChangesDiscardStepsToRedo) {
    SetWidth(0.1);
    Undo();
    Lock();
    EXPECT_EQ(document().RedoSteps(), 0);
    Redo();
    EXPECT_EQ(document().UndoSteps(), 1);
    Undo();
    EXPECT_FALSE(IsLocked());
    EXPECT_EQ(document().RedoSteps(), 1);
    Redo();
    EXPECT_TRUE(IsLocked());
    EXPECT_EQ(document().RedoSteps(), 0) << "not the width, which was undone before";
}

TEST_F(History, StepsDroppedByTheDatabaseRemoveOlderOnes) {
    Lock();
    SetWidth(0.1);
    ::DrawingSetUndoLimit(document().Drawing(), 1);
    SetWidth(0.2);
    EXPECT_EQ(document().UndoSteps(), 1);
    Undo();
    Undo();
    EXPECT_EQ(width(), 0.1);
    EXPECT_TRUE(IsLocked());
}

TEST_F(History, UndoRestoresStylesWithTheirGraphics) {
    CreateStyle("Walls");
    user.Key('A', UserInput::kControl);
    user.Key('E', UserInput::kControl);
    ASSERT_EQ(StylesOfGraphics(), "Walls:4 ");
    for (int round = 0; round < 2; ++round) {
        Undo();
        Undo();
        EXPECT_TRUE(document().Styles().All().empty());
        EXPECT_EQ(document().UndoSteps(), 0);
        Redo();
        EXPECT_EQ(document().Styles().All().size(), 1u);
        Redo();
        EXPECT_EQ(StylesOfGraphics(), "Walls:4 ");
    }
}

TEST_F(History, StyleEditIsOneStepUnlessCanceled) {
    CreateStyle("Walls");
    const auto edit = [&](const char* text, UINT end) {
        user.InDialog([&] { user.Key(VK_RETURN, UserInput::kControl); },
                      [&](HWND sheet) {
                          ASSERT_TRUE(ClickTab(user, sheet, 1));
                          user.Replace(::GetDlgItem(ActivePageOf(sheet), IDC_PEN_SCALE), text);
                          user.Key(end);
                      });
    };
    const auto penScale = [&] {
        StyleBook& styles = document().Styles();
        for (GraphicStruct* sample : orlo::host::Members(styles.Content(styles.Current())))
            if (const auto value = orlo::host::ReadProperty<double>(sample, kPropPenScale)) return *value;
        return 0.0;
    };
    edit("3", VK_ESCAPE);
    EXPECT_EQ(document().UndoSteps(), 1);
    edit("2", VK_RETURN);
    EXPECT_EQ(penScale(), 2);
    EXPECT_EQ(document().UndoSteps(), 2);
    Undo();
    EXPECT_EQ(penScale(), 1);
    Redo();
    EXPECT_EQ(penScale(), 2);
}

} // namespace
