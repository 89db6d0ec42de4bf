#include "Vantrel/Interface/Settings/GeneralSettings.h"

#include "Vantrel/Interface/Settings/AutomaticUpdatesToggle.h"
#include "Vantrel/Interface/Settings/LaunchAtLoginToggle.h"
#include "Vantrel/Interface/Settings/SettingsGroup.h"
#include "Vantrel/Settings/ProfileLinks.h"

#include <QDesktopServices>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr int margin = 12;
constexpr int groupSpacing = 20;

/// macOS's page about the programs that may use others' menus.
constexpr auto accessibilityPage = "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"_L1;

/// A command that can be selected and copied.
QPlainTextEdit *makeExample(const QString &command)
{
    auto *example = new QPlainTextEdit(command);
    example->setReadOnly(true);
    example->setTabChangesFocus(true);
    example->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    example->setWordWrapMode(QTextOption::WrapAnywhere);
    example->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // A command reads from left to right in every language.
    example->setLayoutDirection(Qt::LeftToRight);
    constexpr int lines = 4;
    const auto margins = static_cast<int>(example->document()->documentMargin()) + example->frameWidth();
    // Else its group would take the height that is left.
    example->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    example->setFixedHeight((example->fontMetrics().lineSpacing() * lines) + (2 * margins));
    //: What screen readers call the example of a command that opens a link.
    example->setAccessibleName(GeneralSettings::tr("Example"));
    return example;
}

} // namespace

GeneralSettings::GeneralSettings(const Environment &environment, QWidget *parent)
    : QWidget(parent),
      environment_(environment)
{
    auto *scroller = new QScrollArea(this);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->addWidget(scroller);
    auto *content = new QWidget;
    auto *groups = new QVBoxLayout(content);
    groups->setContentsMargins(margin, margin, margin, margin);
    groups->setSpacing(groupSpacing);
    if (environment_.accessibility)
        addSafari(groups);
    addLinks(groups);
    if (environment_.loginItem || environment_.updater)
        addStart(groups);
    groups->addStretch();
    scroller->setWidget(content);
    scroller->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

void GeneralSettings::addSafari(QVBoxLayout *groups)
{
    //: Title of a group in the settings.
    auto *group = new SettingsGroup(tr("Safari Profiles"));
    auto *row = new QHBoxLayout;
    //: macOS's name for the right to use other programs' menus; what follows is whether Vantrel has it.
    row->addWidget(new QLabel(tr("Accessibility")), 1);
    accessibilityStatus_ = new QLabel;
    row->addWidget(accessibilityStatus_);
    group->content()->addLayout(row);
    //: Button that opens a page of the system's settings.
    auto *button = new QPushButton(tr("Open Privacy Settings…"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [] { QDesktopServices::openUrl(QUrl(QString(accessibilityPage))); });
    group->content()->addWidget(button, 0, Qt::AlignLeading);
    group->content()->addWidget(SettingsGroup::explanation(
        //: In the settings, below the state of the permission.
        tr("Safari can only be told which profile to open through its File menu, so Vantrel clicks it for you. "
           "That needs Accessibility, and macOS asks to let Vantrel control Safari and System Events. Other "
           "browsers need neither.")));
    groups->addWidget(group);
    readSystemAgain();
}

void GeneralSettings::addLinks(QVBoxLayout *groups)
{
    //: Title of a group in the settings.
    auto *group = new SettingsGroup(tr("Links"));
    group->content()->addWidget(SettingsGroup::explanation(
        //: In the settings, above an example. Copy Link is in the menu of each profile; “url=” stands in the link.
        tr("Other apps and scripts can open a profile with a link; Copy Link in a profile's menu in the Profiles tab "
           "gives it. Add `url=` items to open web pages in it:")));
    const auto text = [this] {
        return linkExample(environment_.store, environment_.conventions, environment_.accessibility != nullptr);
    };
    auto *example = makeExample(text());
    group->content()->addWidget(example);
    connect(&environment_.store, &ProfileStore::changed, example, [example, text] {
        if (const QString now = text(); now != example->toPlainText())
            example->setPlainText(now);
    });
    groups->addWidget(group);
}

void GeneralSettings::addStart(QVBoxLayout *groups)
{
    auto *group = new SettingsGroup(QString());
    if (environment_.loginItem) {
        login_ = new LaunchAtLoginToggle(*environment_.loginItem, environment_.alert);
        group->content()->addWidget(login_);
    }
    if (environment_.updater)
        group->content()->addWidget(new AutomaticUpdatesToggle(*environment_.updater));
    groups->addWidget(group);
}

void GeneralSettings::readSystemAgain()
{
    if (accessibilityStatus_) {
        const bool isAllowed = environment_.accessibility->isTrusted();
        //: Whether the user has given a permission.
        accessibilityStatus_->setText(isAllowed ? tr("Allowed") : tr("Not allowed"));
    }
    if (login_)
        login_->readAgain();
}

void GeneralSettings::showEvent(QShowEvent *event)
{
    readSystemAgain();
    QWidget::showEvent(event);
}

} // namespace vantrel
