#include "rtf/writer.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "rtf/reader.h"
#include "rtf/writing/encode.h"
#include "rtf/writing/patching.h"
#include "rtf/writing/rewriting.h"

namespace quill::rtf {
namespace {

bool SameInFile(const Format& saved, const Format& format) {
  CharacterLook look = saved.look;
  look.fallback = format.look.fallback;  // how characters are written, not how they look
  return saved.now == InFile(format.now) && look == format.look &&
         saved.paragraph == format.paragraph;
}

// Whether the bytes read back as this text, every character with the same look.
bool ReadsAs(const Document& document, std::string bytes) {
  const std::optional<Document> saved = Read(std::move(bytes));
  if (!saved || saved->Text() != document.Text()) return false;
  const FormatNumbers& ids = document.FormatIds();
  const FormatNumbers& savedIds = saved->FormatIds();
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const bool known = i > 0 && ids[i] == ids[i - 1] && savedIds[i] == savedIds[i - 1];
    if (!known && !SameInFile(saved->Formats()[savedIds[i]], document.Formats()[ids[i]])) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::string Write(const Document& document) {
  std::string patched = Patched(document);
  const Source& source = document.GetSource();
  if (source.wellFormed || ReadsAs(document, patched)) return patched;
  return Rewritten(document);
}

}  // namespace quill::rtf
