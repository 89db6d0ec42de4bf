#include "Platform/MacOS/NativeSavePanel.h"
#include "Platform/MacOS/PanelFolderAccess.h"
#include "Tests/Contract/FolderAccessContract.h"
#include "Tests/Contract/SavePanelContract.h"

#include <QGuiApplication>
#include <QTest>

#import <AppKit/AppKit.h>

namespace vantrel {
namespace {

constexpr int patience = 20'000;

NSSavePanel *openPanel()
{
    for (NSWindow *window in NSApp.windows) {
        if (window.visible && [window isKindOfClass:[NSSavePanel class]])
            return static_cast<NSSavePanel *>(window);
    }
    return nil;
}

/// Somebody who presses Cancel as soon as a panel shows.
class MacPanels {
public:
    SavePanel &panel() { return *panel_; }
    void destroyPanel() { panel_.reset(); }
    FolderAccess &access() { return access_; }

    static void cancel()
    {
        EXPECT_TRUE(QTest::qWaitFor([] { return openPanel() != nil; }, patience));
        // One that was cancelled before may still show, and would be taken for the next.
        const auto isCancelled = [] {
            [openPanel() cancel:nil];
            return openPanel() == nil;
        };
        EXPECT_TRUE(QTest::qWaitFor(isCancelled, patience));
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    /// The panels are windows of the program's.
    QGuiApplication program_{argumentCount_, arguments_};
    std::optional<NativeSavePanel> panel_{std::in_place};
    PanelFolderAccess access_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, SavePanelContract, MacPanels);
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, FolderAccessContract, MacPanels);

} // namespace test
} // namespace vantrel
