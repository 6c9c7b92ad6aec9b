// SPDX-License-Identifier: MIT
#include "forms/look.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QWidget>

// The pictures stand in a library, which the linker takes over only where it is asked for. The toolkit wants
// this outside of any namespace.
static void LinkPictures() {
  Q_INIT_RESOURCE(icons);
}

namespace brolk {
namespace {

constexpr int kFontHeightPx = 11;

// Frames of the child windows: 3 pixels at the sides and below, 23 above, the sizes that the window formulas
// of the program count with.
constexpr int kChildFramePx = 3;
constexpr int kChildTitlePx = 23;

class ProgramStyle final : public QProxyStyle {
 public:
  ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_MdiSubWindowFrameWidth:
        return kChildFramePx;
      case PM_TitleBarHeight:
        return kChildTitlePx;
      case PM_ScrollBarExtent:
        return 17;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  // A drop-down list opens below its box, in the colours of the box.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

QString FontFamily() {
  static const QString family = [] {
    const QStringList installed = QFontDatabase::families();
    for (const char* wanted : {"Tahoma", "Liberation Sans", "Arimo", "Arial", "Noto Sans",
                               "DejaVu Sans Condensed", "DejaVu Sans"}) {
      if (installed.contains(QLatin1String(wanted))) return QString::fromLatin1(wanted);
    }
    return QStringLiteral("Sans Serif");
  }();
  return family;
}

QPalette ProgramPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0xEC, 0xE9, 0xF2));
  palette.setColor(QPalette::WindowText, ScreenColor(kLabelColor));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Button, QColor(0xE4, 0xDF, 0xEE));
  palette.setColor(QPalette::ButtonText, ScreenColor(kLabelColor));
  palette.setColor(QPalette::Highlight, ScreenColor(kFrameColor));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x80, 0x80, 0x90));
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x90));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x90));
  return palette;
}

}  // namespace

QColor ScreenColor(ColorValue color) {
  const auto bits = static_cast<unsigned int>(color);
  return QColor(static_cast<int>(bits & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
                static_cast<int>((bits >> 16) & 0xFF));
}

ColorValue ColorValueOf(const QColor& color) {
  return PackRgb(color.red(), color.green(), color.blue());
}

QFont ProgramFont(bool bold) {
  QFont font(FontFamily());
  font.setPixelSize(kFontHeightPx);
  font.setBold(bold);
  return font;
}

QIcon PictureIcon(const QString& name) {
  const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
  return QFile::exists(path) ? QIcon(path) : QIcon();
}

QPixmap PicturePixmap(const QString& name, QSize sizePx, double scale) {
  QSvgRenderer renderer(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!renderer.isValid()) return {};
  QPixmap pixmap((QSizeF(sizePx) * scale).toSize());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

void PaintBackground(QWidget& widget, const QString& name) {
  constexpr QSize kTilePx(64, 64);
  const double scale = widget.devicePixelRatioF();
  const QString key = QStringLiteral("%1@%2").arg(name).arg(scale);
  QPixmap tile;
  if (!QPixmapCache::find(key, &tile)) {
    tile = PicturePixmap(name, kTilePx, scale);
    QPixmapCache::insert(key, tile);
  }
  QPainter painter(&widget);
  painter.drawTiledPixmap(widget.rect(), tile);
}

void ApplyLook(QApplication& application) {
  LinkPictures();
  application.setStyle(new ProgramStyle);
  application.setPalette(ProgramPalette());
  application.setFont(ProgramFont());
  application.setWindowIcon(PictureIcon(QStringLiteral("brolkplus")));
}

}  // namespace brolk
