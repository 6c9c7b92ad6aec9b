// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brolk {

// Integer arithmetic has no overflow: a result is cut to the width of its type. Compute in 64 bits, then cut.
[[nodiscard]] std::uint8_t WrapByte(std::int64_t value);
[[nodiscard]] std::int16_t Wrap16(std::int64_t value);
[[nodiscard]] std::int32_t Wrap32(std::int64_t value);

// A real number rounded to the nearest whole one, ties to even. No fault; the result stays real.
[[nodiscard]] double RoundHalfEven(double value);

// A real number taken into an integer type: nearest, ties to even. A result that does not fit is the overflow
// fault.
[[nodiscard]] std::uint8_t RoundToByte(double value);
[[nodiscard]] std::int16_t RoundToInteger(double value);
[[nodiscard]] std::int32_t RoundToLong(double value);

// The integer part of a real number is its floor: -0.5 gives -1.
[[nodiscard]] double IntegerPart(double value);

// Integer division truncates towards zero; a divisor of 0 is the division fault.
[[nodiscard]] std::int32_t DivideIntegers(std::int32_t dividend, std::int32_t divisor);

// The remainder of that division, with the sign of the dividend; a divisor of 0 is the division fault.
[[nodiscard]] std::int32_t Remainder(std::int32_t dividend, std::int32_t divisor);

// Real division; a divisor of 0 is the division fault, 0/0 too.
[[nodiscard]] double DivideReals(double dividend, double divisor);

// The number at the head of a text: leading blanks are skipped, one sign may follow, then decimal digits with
// one optional point, or &H and hexadecimal or &O and octal digits (letters in either case). No exponent.
// Reading stops at the first character that does not fit; a text without a number gives 0. &HFFFF is 65535.
[[nodiscard]] double Val(std::string_view text);

// A number as decimal text: a point as decimal sign, no grouping, no exponent, at most 15 significant digits,
// a leading 0 before the point, no trailing zeros behind it. One too large for a real number is the overflow
// fault.
[[nodiscard]] std::string NumberText(double value);
[[nodiscard]] std::string NumberText(std::int32_t value);

// Upper-case hexadecimal digits without leading zeros; a negative number shows its 32-bit pattern.
[[nodiscard]] std::string HexText(std::int32_t value);

}  // namespace brolk
