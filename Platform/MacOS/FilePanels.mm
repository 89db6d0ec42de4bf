#include "Platform/MacOS/FilePanels.h"

#include "Platform/MacOS/Answer.h"

#include <QCoroFuture>

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

namespace vantrel {
namespace {

NSSavePanel *folderPanel()
{
    NSOpenPanel *panel = [NSOpenPanel openPanel];
    panel.canChooseDirectories = YES;
    panel.canChooseFiles = NO;
    panel.allowsMultipleSelection = NO;
    return panel;
}

NSSavePanel *bundlePanel(const QString &fileName)
{
    NSSavePanel *panel = [NSSavePanel savePanel];
    panel.allowedContentTypes = @[ UTTypeApplicationBundle ];
    panel.nameFieldStringValue = fileName.toNSString();
    return panel;
}

NSSavePanel *nativePanel(const FilePanels::Panel &panel)
{
    NSSavePanel *native = panel.fileName.isEmpty() ? folderPanel() : bundlePanel(panel.fileName);
    if (!panel.title.isEmpty())
        native.title = panel.title.toNSString();
    native.message = panel.message.toNSString();
    native.prompt = panel.confirmButton.toNSString();
    native.directoryURL = [NSURL fileURLWithPath:panel.folder.toNSString() isDirectory:YES];
    native.canCreateDirectories = panel.canMakeFolders;
    return native;
}

} // namespace

struct FilePanels::Native {
    NSSavePanel *open = nil;

    void cancel()
    {
        [open cancel:nil];
        open = nil;
    }

    /// `native` may end before the user has answered. The answer is a copy for the block, which would keep a reference
    /// as a reference.
    static void show(const std::shared_ptr<Native> &native, const Panel &panel, Answer<std::optional<QString>> answer)
    {
        NSSavePanel *shown = nativePanel(panel);
        // The system may have no panel to give.
        if (!shown) {
            answer.give(std::nullopt);
            return;
        }
        native->open = shown;
        // A program without a place in the Dock would show it behind other programs' windows.
        [NSApplication.sharedApplication activate];
        const std::weak_ptr<Native> weak = native;
        [shown beginWithCompletionHandler:^(NSModalResponse response) {
          if (const auto owner = weak.lock(); owner && owner->open == shown)
              owner->open = nil;
          NSString *path = response == NSModalResponseOK ? shown.URL.path : nil;
          answer.give(path ? std::optional(QString::fromNSString(path)) : std::nullopt);
        }];
    }
};

FilePanels::FilePanels() : native_(std::make_shared<Native>()) {}

FilePanels::~FilePanels()
{
    native_->cancel();
}

QCoro::Task<std::optional<QString>> FilePanels::ask(Panel panel)
{
    native_->cancel();
    const Answer<std::optional<QString>> answer;
    Native::show(native_, panel, answer);
    co_return co_await answer.future();
}

} // namespace vantrel
