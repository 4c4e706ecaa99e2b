#include "rtf/syntax/code_page.h"

#include <unicode/ucnv.h>

#include <map>
#include <memory>

#include "text/unicode.h"

namespace quill::rtf {
namespace {

struct ConverterCloser {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, ConverterCloser>;

Converter Open(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(name.c_str(), &status));
  return U_SUCCESS(status) != 0 ? std::move(converter) : nullptr;
}

// Pages that ICU does not know by their number. If it lacks an old Macintosh page altogether, the
// Windows page of the same script stands in.
const char* SpecialName(int number) {
  switch (number) {
    case 10000:
      return "macintosh";
    case 10001:
      return "windows-932";
    case 10002:
      return "windows-950";
    case 10003:
      return "windows-949";
    case 10004:
      return "windows-1256";
    case 10005:
      return "windows-1255";
    case 10006:
      return "x-mac-greek";
    case 10007:
      return "x-mac-cyrillic";
    case 10008:
      return "windows-936";
    case 10021:
      return "windows-874";
    case 10029:
      return "x-mac-centraleurroman";
    case 10081:
      return "x-mac-turkish";
    case 1361:
      return "windows-949";
    case 20866:
      return "KOI8-R";
    case 21866:
      return "KOI8-U";
    case 20127:
      return "windows-1252";
    default:
      return nullptr;
  }
}

Converter OpenPage(int number) {
  if (const char* name = SpecialName(number)) return Open(name);
  if (number >= 28591 && number <= 28605) return Open("iso-8859-" + std::to_string(number - 28590));
  for (const char* prefix : {"windows-", "cp", "ibm-"}) {
    if (Converter converter = Open(prefix + std::to_string(number))) return converter;
  }
  return nullptr;
}

// One converter per page and thread. Every call resets it, so no state is kept in between.
Converter& ConverterOf(int number) {
  thread_local std::map<int, Converter> converters;
  const auto [entry, isNew] = converters.try_emplace(number);
  if (isNew) entry->second = OpenPage(number);
  return entry->second;
}

char32_t Convert(UConverter* converter, const char* bytes, std::size_t length) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_reset(converter);
  const char* source = bytes;
  const UChar32 c = ucnv_getNextUChar(converter, &source, bytes + length, &status);
  const bool whole = U_SUCCESS(status) != 0 && source == bytes + length;
  return whole ? static_cast<char32_t>(c) : kReplacement;
}

}  // namespace

const CodePage& CodePage::Of(int number) {
  thread_local std::map<int, std::unique_ptr<CodePage>> pages;
  const bool known = number == kSymbol || number == kUtf8 || ConverterOf(number) != nullptr;
  std::unique_ptr<CodePage>& page = pages[known ? number : 1252];
  if (page == nullptr) page.reset(new CodePage(known ? number : 1252));
  return *page;
}

CodePage::CodePage(int number) : number_(number) {
  lengths_.fill(1);
  if (number == kSymbol) {
    FillSymbol();
  } else if (number == kUtf8) {
    FillUtf8();
  } else {
    FillFromConverter();
  }
}

void CodePage::FillSymbol() {
  for (unsigned byte = 0; byte < 256; ++byte) singles_[byte] = byte < 0x20 ? byte : 0xF000 + byte;
}

void CodePage::FillUtf8() {
  for (unsigned byte = 0; byte < 256; ++byte) {
    singles_[byte] = byte < 0x80 ? byte : kReplacement;
    if (byte >= 0xC2 && byte <= 0xF4) {
      lengths_[byte] = static_cast<std::uint8_t>(byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2);
    }
  }
}

void CodePage::FillFromConverter() {
  UConverter* const converter = ConverterOf(number_).get();
  const bool doubleByte = ucnv_getMaxCharSize(converter) > 1;
  UErrorCode status = U_ZERO_ERROR;
  UBool starters[256] = {};
  if (doubleByte) {
    ucnv_getStarters(converter, starters, &status);
    pairs_.resize(0x10000);
  }
  for (unsigned byte = 0; byte < 256; ++byte) {
    if (doubleByte && starters[byte] != 0) lengths_[byte] = 2;
    const char one = static_cast<char>(byte);
    // ASCII is itself on every page that files use.
    singles_[byte] = byte < 0x80 ? byte : Convert(converter, &one, 1);
  }
}

bool CodePage::IsTrail(unsigned char byte) const {
  return number_ == kUtf8 ? (byte & 0xC0U) == 0x80 : byte >= 0x40 && byte != 0x7F;
}

char32_t CodePage::Sequence(const std::string& bytes) const {
  if (number_ == kUtf8) {
    const std::u32string text = FromUtf8(bytes);
    return text.size() == 1 ? text[0] : kReplacement;
  }
  const unsigned lead = static_cast<unsigned char>(bytes[0]);
  const unsigned trail = static_cast<unsigned char>(bytes[1]);
  char32_t& known = pairs_[lead << 8U | trail];
  if (known == 0) known = Convert(ConverterOf(number_).get(), bytes.data(), bytes.size());
  return known;
}

int CodePageOfCharset(int charset) {
  switch (charset) {
    case 0:
      return 1252;
    case 2:
      return CodePage::kSymbol;
    case 77:
      return 10000;
    case 78:
      return 10001;
    case 79:
      return 10003;
    case 80:
      return 10008;
    case 81:
      return 10002;
    case 83:
      return 10005;
    case 84:
      return 10004;
    case 85:
      return 10006;
    case 86:
      return 10081;
    case 87:
      return 10021;
    case 88:
      return 10029;
    case 89:
      return 10007;
    case 128:
      return 932;
    case 129:
      return 949;
    case 130:
      return 1361;
    case 134:
      return 936;
    case 136:
      return 950;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 163:
      return 1258;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 222:
      return 874;
    case 238:
      return 1250;
    case 254:
      return 437;
    case 255:
      return 850;
    default:
      return 0;
  }
}

}  // namespace quill::rtf
