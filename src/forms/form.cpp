// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QResizeEvent>
#include <algorithm>
#include <tuple>
#include <vector>

#include "forms/flat_button.h"
#include "forms/keys.h"
#include "forms/look.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

// Controls whose centres are this near in height stand on one line.
constexpr int kTabLinePx = 14;

Form* activeForm = nullptr;
QMdiArea* childArea = nullptr;

Qt::WindowFlags FlagsOf(const FormStyle& style) {
  const Qt::WindowFlags buttons =
      Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  switch (style.kind) {
    case FormKind::Frame:
      return Qt::Window;
    case FormKind::Child:
      return Qt::SubWindow | buttons;
    case FormKind::Free:
      return Qt::Dialog | buttons;
  }
  return Qt::Window;
}

QSize ClientSize(const FormStyle& style) {
  return {PixelsFromTwips(style.clientWidthTwips), PixelsFromTwips(style.clientHeightTwips)};
}

}  // namespace

int PixelsFromTwips(double twips) {
  return static_cast<int>(RoundHalfEven(twips / kTwipsPerPixel));
}

Form::Form(const FormStyle& style) : QWidget(nullptr), style_(style) {
  setObjectName(QString::fromUtf8(style.name));
  setFocusPolicy(Qt::StrongFocus);
  setFont(ProgramFont());
  if (style.kind == FormKind::Child && childArea != nullptr) {
    MakeChildFrame();
  } else {
    setWindowFlags(FlagsOf(style));
    if (style.kind == FormKind::Free && childArea != nullptr) setParent(childArea->window(), FlagsOf(style));
  }
  SetCaption(QString::fromUtf8(style.caption));
  const QSize size = ClientSize(style);
  SetClientSize(size.width(), size.height());
}

Form::~Form() {
  if (activeForm == this) activeForm = nullptr;
}

void Form::MakeChildFrame() {
  childFrame_ = new QMdiSubWindow;
  childFrame_->setObjectName(objectName() + QStringLiteral("Frame"));
  childFrame_->setAttribute(Qt::WA_DeleteOnClose, false);
  childFrame_->setWidget(this);
  childArea->addSubWindow(childFrame_, FlagsOf(style_));
  childFrame_->setMinimumSize(1, 1);
  childFrame_->setWindowIcon(PictureIcon(QStringLiteral("brolkplus")));
  show();
  childFrame_->hide();
  childFrame_->installEventFilter(this);
  connect(childFrame_, &QMdiSubWindow::windowStateChanged, this,
          [this](Qt::WindowStates before, Qt::WindowStates now) {
            if (!before.testFlag(Qt::WindowActive) && now.testFlag(Qt::WindowActive) && Visible())
              BecomeActive();
          });
}

QSize Form::FrameExtent() const {
  if (childFrame_ == nullptr) return (frameGeometry().size() - geometry().size());
  const QMargins margins = childFrame_->contentsMargins();
  return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

const QWidget* Form::Outer() const {
  return childFrame_ != nullptr ? static_cast<const QWidget*>(childFrame_) : this;
}
QWidget* Form::Outer() {
  return childFrame_ != nullptr ? static_cast<QWidget*>(childFrame_) : this;
}

QRect Form::OuterRect() const {
  if (childFrame_ != nullptr) return childFrame_->geometry();
  if (isMaximized() || isMinimized()) {
    const QRect normal = normalGeometry();
    return {normal.topLeft() - (geometry().topLeft() - frameGeometry().topLeft()),
            normal.size() + FrameExtent()};
  }
  return {pos(), size() + FrameExtent()};
}

void Form::SetOuterRect(const QRect& rect) {
  const QSize size = childFrame_ != nullptr ? rect.size() : rect.size() - FrameExtent();
  const bool fixed = style_.border == FormBorder::Fixed;
  if (isMaximized() || isMinimized()) showNormal();
  if (fixed && Outer()->size() != size) Outer()->setFixedSize(size.expandedTo(QSize(1, 1)));
  if (!fixed) Outer()->resize(size.expandedTo(QSize(1, 1)));
  if (OuterRect().topLeft() != rect.topLeft()) Outer()->move(rect.topLeft());
  if (childFrame_ != nullptr && !isVisible()) TakeSizeWhileHidden();
  if (childFrame_ == nullptr && !fixed && !isVisible()) {
    wantedOuterSize_ = rect.size();
    assumedExtent_ = FrameExtent();
  }
}

void Form::KeepOuterSize() {
  if (!wantedOuterSize_.isValid() || !isVisible()) return;
  const QSize extent = FrameExtent();
  if (extent == assumedExtent_) return;
  const QSize client = wantedOuterSize_ - extent;
  wantedOuterSize_ = QSize();
  if (!isMaximized() && !isMinimized()) resize(client);
}

// A hidden frame lays its window out only when it is shown; the window has its size, and its resize event, at
// once.
void Form::TakeSizeWhileHidden() {
  const QSize before = size();
  resize(childFrame_->size() - FrameExtent());
  if (size() == before) return;
  QResizeEvent event(size(), before);
  QCoreApplication::sendEvent(this, &event);
  setAttribute(Qt::WA_PendingResizeEvent, false);
}

double Form::Left() const {
  return OuterRect().x() * kTwipsPerPixel;
}
double Form::Top() const {
  return OuterRect().y() * kTwipsPerPixel;
}
double Form::Width() const {
  return OuterRect().width() * kTwipsPerPixel;
}
double Form::Height() const {
  return OuterRect().height() * kTwipsPerPixel;
}

void Form::SetLeft(double twips) {
  QRect rect = OuterRect();
  rect.moveLeft(PixelsFromTwips(twips));
  SetOuterRect(rect);
}

void Form::SetTop(double twips) {
  QRect rect = OuterRect();
  rect.moveTop(PixelsFromTwips(twips));
  SetOuterRect(rect);
}

void Form::SetWidth(double twips) {
  QRect rect = OuterRect();
  rect.setWidth(PixelsFromTwips(twips));
  SetOuterRect(rect);
}

void Form::SetHeight(double twips) {
  QRect rect = OuterRect();
  rect.setHeight(PixelsFromTwips(twips));
  SetOuterRect(rect);
}

int Form::ScaleWidth() const {
  return width();
}
int Form::ScaleHeight() const {
  return height();
}

void Form::SetClientSize(int widthPx, int heightPx) {
  QRect rect = OuterRect();
  rect.setSize(QSize(widthPx, heightPx) + FrameExtent());
  SetOuterRect(rect);
}

QString Form::Caption() const {
  return caption_;
}

void Form::SetCaption(const QString& caption) {
  caption_ = caption;
  // Some window systems put the program's file name where no title stands.
  setWindowTitle(caption.isEmpty() ? QStringLiteral(" ") : caption);
  if (childFrame_ != nullptr) childFrame_->setWindowTitle(windowTitle());
  setAccessibleName(caption.isEmpty() ? objectName() : caption);
}

bool Form::Visible() const {
  return !Outer()->isHidden();
}

void Form::Show() {
  if (Visible()) return;
  const bool first = !shownBefore_;
  shownBefore_ = true;
  if (first) ArrangeTabOrder();
  Outer()->show();
  if (first) Form_Resize();
  if (childFrame_ != nullptr) childArea->setActiveSubWindow(childFrame_);
  BecomeActive();
}

void Form::ArrangeTabOrder() {
  struct Stop {
    int line;
    int left;
    QWidget* control;
  };
  std::vector<Stop> stops;
  for (QWidget* control : findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0 || childArea == control ||
        control->focusProxy() != nullptr)
      continue;
    if (control->window() != window()) continue;
    if (childArea != nullptr && childArea->isAncestorOf(control) && !childArea->isAncestorOf(this)) continue;
    const QPoint center = control->mapTo(this, control->rect().center());
    stops.push_back({center.y() / kTabLinePx, center.x(), control});
  }
  std::stable_sort(stops.begin(), stops.end(), [](const Stop& a, const Stop& b) {
    return std::tie(a.line, a.left) < std::tie(b.line, b.left);
  });
  for (std::size_t next = 1; next < stops.size(); ++next)
    setTabOrder(stops[next - 1].control, stops[next].control);
}

void Form::Hide() {
  Outer()->hide();
  if (activeForm == this) activeForm = nullptr;
}

void Form::SetFocus() {
  if (!Visible()) return;
  if (childFrame_ != nullptr) {
    childArea->setActiveSubWindow(childFrame_);
    childArea->window()->activateWindow();
  } else {
    raise();
    activateWindow();
  }
  if (!isAncestorOf(focusWidget())) setFocus(Qt::OtherFocusReason);
  BecomeActive();
}

void Form::Refresh() {
  update();
  if (isVisible()) repaint();
}

void Form::BecomeActive() {
  if (activeForm == this) return;
  Form* before = activeForm;
  activeForm = this;
  if (before != nullptr) before->Form_Deactivate();
  Form_Activate();
}

Form* Form::Active() {
  return activeForm;
}

void Form::SetChildArea(QMdiArea* area) {
  childArea = area;
}

void Form::Form_KeyDown(int, int) {}

void Form::FrameClosed() {
  Hide();
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  FrameClosed();
}

void Form::keyPressEvent(QKeyEvent* event) {
  const int code = KeyCodeOf(*event);
  if (code == kKeyEnter && FlatButton::ClickRole(*this, FlatButton::Role::Default)) return;
  if (code == kKeyEscape && FlatButton::ClickRole(*this, FlatButton::Role::Cancel)) return;
  Form_KeyDown(code, ShiftBitsOf(*event));
}

void Form::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Form_Resize();
}

void Form::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (style_.kind != FormKind::Frame) PaintBackground(*this, QStringLiteral("background-tool"));
}

bool Form::event(QEvent* event) {
  if (style_.kind == FormKind::Free && event->type() == QEvent::WindowActivate) BecomeActive();
  if (style_.kind == FormKind::Free && event->type() == QEvent::WindowDeactivate) Form_Deactivate();
  const bool last = event->type() == QEvent::DeferredDelete;
  const bool handled = QWidget::event(event);
  // The last event frees the window.
  if (!last) KeepOuterSize();
  return handled;
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (watched == childFrame_ && event->type() == QEvent::Close) {
    event->ignore();
    FrameClosed();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void Place(QWidget& control, double leftTwips, double topTwips, double widthTwips, double heightTwips) {
  control.setGeometry(PixelsFromTwips(leftTwips), PixelsFromTwips(topTwips), PixelsFromTwips(widthTwips),
                      PixelsFromTwips(heightTwips));
}

}  // namespace brolk
