// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QMdiArea;
class QMdiSubWindow;

namespace brolk {

inline constexpr int kTwipsPerPixel = 15;

// Twips to whole pixels, nearest, ties to even.
[[nodiscard]] int PixelsFromTwips(double twips);

// How a window stands on the screen.
enum class FormKind {
  Frame,  // the main window
  Child,  // inside the main window's client area
  Free,   // a window of its own
};

enum class FormBorder { Fixed, Sizable };

struct FormStyle {
  const char* name;     // the window's given name, its object name
  const char* caption;  // at the start
  FormKind kind;
  FormBorder border;
  double clientWidthTwips;
  double clientHeightTwips;
};

// A window of the program. It is made hidden; Show and Hide move between the two states, and closing its
// frame hides it too, unless a window overrides FrameClosed. All events run to their end inside the call that
// raises them.
class Form : public QWidget {
 public:
  explicit Form(const FormStyle& style);
  ~Form() override;

  // Position and size with the frame, in twips: relative to the main window's client area for a child, to the
  // screen otherwise. The values are whole pixels. A maximised or minimised window tells and takes the values
  // of its normal state.
  [[nodiscard]] double Left() const;
  [[nodiscard]] double Top() const;
  [[nodiscard]] double Width() const;
  [[nodiscard]] double Height() const;
  void SetLeft(double twips);
  void SetTop(double twips);
  void SetWidth(double twips);
  void SetHeight(double twips);

  // The client area in pixels, without frame.
  [[nodiscard]] int ScaleWidth() const;
  [[nodiscard]] int ScaleHeight() const;
  // Sizes the window so that its client area has this size in pixels.
  void SetClientSize(int widthPx, int heightPx);

  [[nodiscard]] QString Caption() const;
  void SetCaption(const QString& caption);

  [[nodiscard]] bool Visible() const;
  // Shows the window; one that was hidden becomes the active one. Showing a visible window changes nothing.
  // The first time raises Form_Resize, also when the window keeps its size.
  void Show();
  void Hide();
  // Makes the window the active one and gives it the keyboard.
  void SetFocus();
  // Shows what was drawn at once.
  void Refresh();

  // Runs Form_Load; called once, right after the window has been made and can be reached.
  void Load() { Form_Load(); }

  // Takes part in the record of the active window: runs Form_Activate if another window was active.
  void BecomeActive();
  [[nodiscard]] static Form* Active();

  // The area of the main window that holds the child windows; the main window sets it.
  static void SetChildArea(QMdiArea* area);

  // The frame around a child window, null for the others.
  [[nodiscard]] QMdiSubWindow* ChildFrame() const { return childFrame_; }

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  // A new size, at once also while the window is hidden, and the first show.
  virtual void Form_Resize() {}
  // KeyCode and Shift as in keys.h.
  virtual void Form_KeyDown(int keyCode, int shift);
  // The user closes the window by its frame.
  virtual void FrameClosed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // A tool window has the background picture of all of them.
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeChildFrame();
  void TakeSizeWhileHidden();
  // Tab visits the controls line by line, each line from left to right.
  void ArrangeTabOrder();
  [[nodiscard]] const QWidget* Outer() const;
  [[nodiscard]] QWidget* Outer();
  [[nodiscard]] QRect OuterRect() const;
  void SetOuterRect(const QRect& rect);
  [[nodiscard]] QSize FrameExtent() const;
  // A window system that frames a window once it is shown adds the frame to the size that was set before:
  // takes it off again.
  void KeepOuterSize();

  FormStyle style_;
  QString caption_;
  QMdiSubWindow* childFrame_ = nullptr;
  bool shownBefore_ = false;
  // Set while the frame of a window whose outer size counts is not known yet: that size, and the frame that
  // was assumed.
  QSize wantedOuterSize_;
  QSize assumedExtent_;
};

// Puts a control on a window: position and size in twips.
void Place(QWidget& control, double leftTwips, double topTwips, double widthTwips, double heightTwips);

}  // namespace brolk
