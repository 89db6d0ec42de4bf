#include "Vantrel/Interface/Settings/SettingsWindow.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/Interface/Settings/AboutSettings.h"
#include "Vantrel/Pictures/Symbols.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr QSize usualSize{620, 560};
/// Narrower, names had no room.
constexpr int smallestWidth = 480;

/// In the order of the tabs.
constexpr std::array tabSymbols{"person.crop.rectangle.stack"_L1, "gearshape"_L1, "info.circle"_L1};

} // namespace

SettingsWindow::SettingsWindow(const Environment &environment)
    : environment_(environment),
      tabs_(new QTabWidget(this)),
      profiles_(new ProfilesSettings(environment.profiles)),
      general_(new GeneralSettings(environment.general))
{
    //: Title of the settings window.
    setWindowTitle(tr("Vantrel Settings"));
    setWindowIcon(QIcon(new MenuIconEngine([](int pixels) { return drawnImage(u"app.kestrune.Vantrel"_s, pixels); })));
    setMinimumWidth(smallestWidth);
    resize(usualSize);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    tabs_->setDocumentMode(true);
    //: Tabs of the settings.
    tabs_->addTab(profiles_, tr("Profiles"));
    tabs_->addTab(general_, tr("General"));
    tabs_->addTab(new AboutSettings(QCoreApplication::applicationVersion(), environment_.build), tr("About"));
    drawTabs();
    tabs_->setCurrentIndex(static_cast<int>(environment_.model.tab()));
    connect(tabs_, &QTabWidget::currentChanged, &environment_.model,
            [this](int index) { environment_.model.setTab(static_cast<SettingsModel::Tab>(index)); });
    connect(&environment_.model, &SettingsModel::tabChanged, tabs_,
            [this](SettingsModel::Tab tab) { tabs_->setCurrentIndex(static_cast<int>(tab)); });
    auto *close = new QShortcut(QKeySequence::Close, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
}

SettingsWindow::~SettingsWindow()
{
    profiles_->commitNames();
}

void SettingsWindow::drawTabs()
{
    const QColor color = palette().color(QPalette::WindowText);
    for (std::size_t index = 0; index < tabSymbols.size(); ++index)
        tabs_->setTabIcon(static_cast<int>(index),
                          environment_.profiles.symbols.icon(QString(tabSymbols.at(index)), color));
}

void SettingsWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!std::exchange(isCounted_, true))
        environment_.windows.windowAppeared();
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    profiles_->commitNames();
    QWidget::closeEvent(event);
    if (event->isAccepted() && std::exchange(isCounted_, false))
        environment_.windows.windowDisappeared();
}

void SettingsWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        drawTabs();
    // The user may come back from the system's settings.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        general_->readSystemAgain();
    QWidget::changeEvent(event);
}

} // namespace vantrel
