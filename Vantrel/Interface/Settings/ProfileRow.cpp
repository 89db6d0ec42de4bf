#include "Vantrel/Interface/Settings/ProfileRow.h"

#include "Vantrel/Interface/Settings/LeadingAlignment.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr double iconSide = 1.4;
/// The icon of a profile that the menu leaves out.
constexpr double fadedOpacity = 0.4;
/// Room for the dots by which a row is dragged.
constexpr int gripWidth = 10;
constexpr int margin = 4;
/// Names get narrower than this only where there is no room at all.
constexpr int fewCharacters = 8;

} // namespace

ProfileRow::ProfileRow(const Environment &environment, Content content, QWidget *parent)
    : QWidget(parent),
      content_(std::move(content)),
      icon_(new PictureView(
          iconSide, [this, draw = environment.drawIcon](int pixels) { return draw(content_.icon, pixels); }, this)),
      name_(new QLineEdit(this)),
      recorder_(environment.makeRecorder(content_.id, this)),
      hide_(new SymbolButton(environment.symbols, u"eye"_s, this)),
      more_(new SymbolButton(environment.symbols, u"ellipsis.circle"_s, this))
{
    if (!recorder_)
        command_ = makeCommandButton();
    arrange(recorder_ ? recorder_ : command_);
    setCursor(Qt::OpenHandCursor);
    for (QWidget *control : std::initializer_list<QWidget *>{recorder_ ? recorder_ : command_, hide_, more_})
        control->setCursor(Qt::ArrowCursor);
    name_->setAlignment(leading(*this) | Qt::AlignVCenter);
    name_->setMinimumWidth(name_->fontMetrics().averageCharWidth() * fewCharacters);
    name_->installEventFilter(this);
    connect(name_, &QLineEdit::editingFinished, this, &ProfileRow::commitName);
    connect(hide_, &QToolButton::clicked, this, [this] { Q_EMIT hiddenToggled(!content_.isHidden); });
    connect(more_, &QToolButton::clicked, this, [this] { Q_EMIT menuAsked(menuCorner()); });
    addMoveKeys();
    showContent(content_);
}

QWidget *ProfileRow::makeCommandButton()
{
    //: Button that copies the command that opens a profile, where there are no keyboard shortcuts for programs.
    auto *button = new QPushButton(tr("Copy Command"), this);
    button->setFlat(true);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &ProfileRow::commandAsked);
    return button;
}

void ProfileRow::arrange(QWidget *shortcut)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(isRightToLeft() ? QMargins(margin, margin, margin + gripWidth, margin)
                                               : QMargins(margin + gripWidth, margin, margin, margin));
    layout->addWidget(icon_);
    layout->addWidget(name_, 1);
    layout->addWidget(shortcut);
    layout->addWidget(hide_);
    layout->addWidget(more_);
}

void ProfileRow::addMoveKeys()
{
    const auto add = [this](Qt::Key key, ProfileMove::Direction direction) {
        auto *keys = new QShortcut(Qt::ALT | key, this);
        keys->setContext(Qt::WidgetWithChildrenShortcut);
        connect(keys, &QShortcut::activated, this, [this, direction] { Q_EMIT moveAsked(direction); });
    };
    add(Qt::Key_Up, ProfileMove::Direction::up);
    add(Qt::Key_Down, ProfileMove::Direction::down);
}

void ProfileRow::setContent(const Content &content)
{
    if (content == content_)
        return;
    const bool isSameIcon = content.icon == content_.icon;
    content_ = content;
    showContent(content_);
    if (!isSameIcon)
        icon_->update();
}

void ProfileRow::showContent(const Content &content)
{
    if (!name_->isModified() && name_->text() != content.displayName)
        name_->setText(content.displayName);
    name_->setPlaceholderText(content.ownName);
    const QString &subject = content.title;
    //: Label of the field with a profile's name.
    const QString nameLabel = tr("Name");
    name_->setToolTip(nameLabel);
    //: Screen readers: the profile, and what of it a field or a button is about.
    name_->setAccessibleName(tr("%1: %2").arg(subject, nameLabel));
    if (recorder_)
        recorder_->setSubject(subject);
    if (command_) {
        //: Screen readers: the profile, and what of it a field or a button is about.
        command_->setAccessibleName(tr("%1: %2").arg(subject, tr("Copy Command")));
    }
    //: Help on the button that leaves a profile out of the menu, or shows it there again.
    const QString hideText = content.isHidden ? tr("Show in the menu") : tr("Leave out of the menu");
    hide_->setSymbol(content.isHidden ? u"eye.slash"_s : u"eye"_s);
    hide_->setToolTip(hideText);
    //: Screen readers: the profile, and what of it a field or a button is about.
    hide_->setAccessibleName(tr("%1: %2").arg(subject, hideText));
    //: The menu of what else can be done with a profile.
    const QString moreText = tr("More");
    more_->setToolTip(moreText);
    //: Screen readers: the profile, and what of it a field or a button is about.
    more_->setAccessibleName(tr("%1: %2").arg(subject, moreText));
    icon_->setOpacity(content.isHidden ? fadedOpacity : 1);
}

void ProfileRow::commitName()
{
    if (!name_->isModified())
        return;
    name_->setModified(false);
    const QString name = name_->text();
    Q_EMIT renamed(name);
    // Also where the store keeps what it had, as with a name that was cleared.
    if (name_->text() != content_.displayName)
        name_->setText(content_.displayName);
}

bool ProfileRow::isInUse() const
{
    const QWidget *focus = QApplication::focusWidget();
    return isDragged_ || name_->isModified() || (recorder_ != nullptr && recorder_->isRecording()) ||
           (focus != nullptr && isAncestorOf(focus));
}

QList<QWidget *> ProfileRow::controls() const
{
    QList<QWidget *> controls{name_};
    if (recorder_)
        controls += recorder_->controls();
    else
        controls.append(command_);
    return controls + QList<QWidget *>{hide_, more_};
}

void ProfileRow::refreshShortcut()
{
    if (recorder_)
        recorder_->refresh();
}

bool ProfileRow::eventFilter(QObject *object, QEvent *event)
{
    // Escape gives the name back that the field had.
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape &&
        name_->isModified()) {
        name_->setText(content_.displayName);
        name_->selectAll();
        return true;
    }
    return QWidget::eventFilter(object, event);
}

void ProfileRow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        pressedAt_ = event->pos();
}

void ProfileRow::mouseMoveEvent(QMouseEvent *event)
{
    if (!pressedAt_)
        return;
    if (!isDragged_ && (event->pos() - *pressedAt_).manhattanLength() >= QApplication::startDragDistance()) {
        setDragged(true);
        // For Escape.
        setFocus(Qt::MouseFocusReason);
    }
    if (isDragged_)
        Q_EMIT dragMoved(event->globalPosition().toPoint());
}

void ProfileRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        endDrag(true);
}

void ProfileRow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isDragged_)
        endDrag(false);
    else
        QWidget::keyPressEvent(event);
}

QPoint ProfileRow::menuCorner() const
{
    const QRect button = more_->rect();
    return more_->mapToGlobal(isRightToLeft() ? button.bottomRight() : button.bottomLeft());
}

void ProfileRow::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT menuAsked(event->reason() == QContextMenuEvent::Keyboard ? menuCorner() : event->globalPos());
}

void ProfileRow::endDrag(bool isDropped)
{
    pressedAt_.reset();
    if (!isDragged_)
        return;
    setDragged(false);
    Q_EMIT dragEnded(isDropped);
}

void ProfileRow::setDragged(bool isDragged)
{
    isDragged_ = isDragged;
    setCursor(isDragged ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    update();
}

void ProfileRow::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDragged_) {
        QColor marked = palette().color(QPalette::Highlight);
        marked.setAlphaF(0.2F);
        painter.fillRect(rect(), marked);
    }
    // Six dots, as rows that can be dragged have them everywhere.
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::PlaceholderText));
    constexpr double radius = 1;
    constexpr int gap = 4;
    const double left = isRightToLeft() ? width() - margin - gap - 2 : margin + 1;
    for (const int column : {0, 1}) {
        for (const int line : {-1, 0, 1})
            painter.drawEllipse(QPointF(left + (column * gap), (height() / 2.0) + (line * gap)), radius, radius);
    }
}

} // namespace vantrel
