#include "Vantrel/Interface/FileSavePanel.h"

#include <QCoroFuture>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPromise>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The toolkit's own dialog, for only in it a message has a place.
QFileDialog *dialogOf(const SavePanel::Panel &panel)
{
    auto *dialog = new QFileDialog(nullptr, panel.title, panel.folder);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    if (panel.fileName.isEmpty()) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        // A save panel for folders would ask for a new one's name.
        dialog->setAcceptMode(QFileDialog::AcceptOpen);
    } else {
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setDefaultSuffix(u"app"_s);
        dialog->selectFile(panel.fileName);
    }
    dialog->setLabelText(QFileDialog::Accept, panel.confirmButton);
    auto *message = new QLabel(panel.message, dialog);
    // It may hold a profile's name, which is no markup.
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    if (auto *grid = qobject_cast<QGridLayout *>(dialog->layout()))
        grid->addWidget(message, grid->rowCount(), 0, 1, -1);
    return dialog;
}

} // namespace

FileSavePanel::~FileSavePanel()
{
    delete open_;
}

QCoro::Task<std::optional<QString>> FileSavePanel::ask(Panel panel)
{
    if (open_)
        open_->reject();
    auto *dialog = dialogOf(panel);
    open_ = dialog;
    const auto chosen = std::make_shared<std::optional<QString>>();
    const auto done = std::make_shared<QPromise<void>>();
    done->start();
    const QFuture<void> answer = done->future();
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, chosen, done](int result) {
        const QStringList files = dialog->selectedFiles();
        if (result == QDialog::Accepted && !files.isEmpty())
            *chosen = files.first();
        done->finish();
        dialog->deleteLater();
    });
    // Also when the panel is gone before the user has answered.
    QObject::connect(dialog, &QObject::destroyed, [done] { done->finish(); });
    dialog->open();
    dialog->raise();
    dialog->activateWindow();
    co_await answer;
    co_return std::optional(*chosen);
}

} // namespace vantrel
