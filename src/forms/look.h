// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QString>

#include "runtime/surface.h"

class QApplication;
class QWidget;

namespace brolk {

// The given colours, as colour values.
inline constexpr ColorValue kFrameColor = 0x800080;
inline constexpr ColorValue kInfoPanelColor = 0x80FF;
inline constexpr ColorValue kLabelColor = 0x800000;
inline constexpr ColorValue kBoxColor = 0x800080;
inline constexpr ColorValue kBoxTextColor = 0xFFFF;
inline constexpr ColorValue kInfoTextColor = 0xFFFF;

// A colour value on screen: its low three bytes.
[[nodiscard]] QColor ScreenColor(ColorValue color);
[[nodiscard]] ColorValue ColorValueOf(const QColor& color);

// The program's font: Tahoma, or the nearest sans that is installed, 11 pixels.
[[nodiscard]] QFont ProgramFont(bool bold = false);

// A picture by its name in assets/icons, without extension. An unknown name gives an empty picture.
[[nodiscard]] QIcon PictureIcon(const QString& name);
// The same, drawn at a size in pixels for a screen of the given scale.
[[nodiscard]] QPixmap PicturePixmap(const QString& name, QSize sizePx, double scale);

// Covers a widget with a picture, laid side by side from its top left corner.
void PaintBackground(QWidget& widget, const QString& name);

// Sets style, font and colours for the whole program.
void ApplyLook(QApplication& application);

}  // namespace brolk
