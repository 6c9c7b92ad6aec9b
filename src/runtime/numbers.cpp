// SPDX-License-Identifier: MIT
#include "runtime/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "runtime/fault.h"

namespace brolk {
namespace {

constexpr int kSignificantDigits = 15;

template <typename Target>
Target RoundInto(double value) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Target>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Target>::max()))) {
    throw Fault(FaultKind::Overflow);
  }
  return static_cast<Target>(rounded);
}

// The value of a digit in any base up to 16, or -1.
int DigitValue(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}

double ReadDigits(std::string_view text, int base) {
  double value = 0;
  for (const char character : text) {
    const int digit = DigitValue(character);
    if (digit < 0 || digit >= base) break;
    value = value * base + digit;
  }
  return value;
}

// The longest head of the form digits[.digits]; its length in characters, 0 when it holds no digit.
std::size_t DecimalHead(std::string_view text) {
  std::size_t length = 0;
  bool pointSeen = false;
  bool digitSeen = false;
  for (const char character : text) {
    if (character == '.' && !pointSeen) {
      pointSeen = true;
    } else if (character >= '0' && character <= '9') {
      digitSeen = true;
    } else {
      break;
    }
    ++length;
  }
  return digitSeen ? length : 0;
}

double ReadDecimal(std::string_view text) {
  const std::string head = "0" + std::string(text.substr(0, DecimalHead(text)));
  double value = 0;
  const auto result =
      std::from_chars(head.data(), head.data() + head.size(), value, std::chars_format::fixed);
  if (result.ec != std::errc::result_out_of_range) return value;
  // Too large, or too close to 0.
  const bool isLarge = head.find_first_of("123456789") < head.find('.');
  return isLarge ? std::numeric_limits<double>::infinity() : 0;
}

// A number as up to 15 significant digits d.ddd times 10 to the exponent, rounded, without trailing zeros and
// sign.
struct Decimal {
  std::string digits;  // empty for 0
  int exponent = 0;
};

Decimal DecimalOf(double value) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                    std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal decimal{std::string(text.substr(0, 1)) + std::string(text.substr(2, mark - 2))};
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  const std::size_t number = mark + (text[mark + 1] == '+' ? 2 : 1);
  std::from_chars(text.data() + number, text.data() + text.size(), decimal.exponent);
  return decimal;
}

}  // namespace

std::uint8_t WrapByte(std::int64_t value) {
  return static_cast<std::uint8_t>(static_cast<std::uint64_t>(value));
}
std::int16_t Wrap16(std::int64_t value) {
  return static_cast<std::int16_t>(static_cast<std::uint64_t>(value));
}
std::int32_t Wrap32(std::int64_t value) {
  return static_cast<std::int32_t>(static_cast<std::uint64_t>(value));
}

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

std::uint8_t RoundToByte(double value) {
  return RoundInto<std::uint8_t>(value);
}
std::int16_t RoundToInteger(double value) {
  return RoundInto<std::int16_t>(value);
}
std::int32_t RoundToLong(double value) {
  return RoundInto<std::int32_t>(value);
}

double IntegerPart(double value) {
  return std::floor(value);
}

std::int32_t DivideIntegers(std::int32_t dividend, std::int32_t divisor) {
  if (divisor == 0) throw Fault(FaultKind::DivisionByZero);
  return Wrap32(static_cast<std::int64_t>(dividend) / divisor);
}

std::int32_t Remainder(std::int32_t dividend, std::int32_t divisor) {
  if (divisor == 0) throw Fault(FaultKind::DivisionByZero);
  return static_cast<std::int32_t>(static_cast<std::int64_t>(dividend) % divisor);
}

double DivideReals(double dividend, double divisor) {
  if (divisor == 0) throw Fault(FaultKind::DivisionByZero);
  return dividend / divisor;
}

double Val(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  double sign = 1;
  if (text.front() == '-' || text.front() == '+') {
    sign = text.front() == '-' ? -1 : 1;
    text.remove_prefix(1);
  }
  if (text.size() >= 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return sign * ReadDigits(text.substr(2), 16);
    if (text[1] == 'O' || text[1] == 'o') return sign * ReadDigits(text.substr(2), 8);
    return 0;
  }
  return sign * ReadDecimal(text);
}

std::string NumberText(double value) {
  if (!std::isfinite(value)) throw Fault(FaultKind::Overflow);
  const Decimal decimal = DecimalOf(value);
  if (decimal.digits.empty()) return "0";
  const auto count = static_cast<int>(decimal.digits.size());
  const int whole = decimal.exponent + 1;  // digits before the point
  std::string text = decimal.digits;
  if (whole <= 0) {
    text.insert(0, "0." + std::string(static_cast<std::size_t>(-whole), '0'));
  } else if (whole >= count) {
    text.append(static_cast<std::size_t>(whole - count), '0');
  } else {
    text.insert(static_cast<std::size_t>(whole), ".");
  }
  return value < 0 ? "-" + text : text;
}

std::string NumberText(std::int32_t value) {
  return std::to_string(value);
}

std::string HexText(std::int32_t value) {
  char buffer[16];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, static_cast<std::uint32_t>(value), 16);
  std::string text(buffer, result.ptr);
  for (char& character : text) {
    if (character >= 'a') character = static_cast<char>(character - 'a' + 'A');
  }
  return text;
}

}  // namespace brolk
