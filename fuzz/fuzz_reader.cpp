// Reads any bytes. What loads must be a sound document and, if it was rich text, be saved as the
// same bytes.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "require.h"
#include "round_trip/round_trip.h"
#include "rtf/reader.h"
#include "rtf/writer.h"

using quill::Document;
using quill::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::optional<Document> document = quill::rtf::Read(bytes);
  if (!document) return 0;
  document->Check();
  const bool richText = bytes.find("{\\rtf") != std::string::npos;
  const std::string saved = quill::rtf::Write(*document);
  Require(saved == document->GetSource().bytes, "a save without a change changed the bytes");
  if (richText && saved == bytes) return 0;
  const std::optional<Document> again = quill::rtf::Read(saved);
  Require(again.has_value(), "what was saved does not load");
  const std::string difference = quill::Difference(*document, *again);
  Require(difference.empty(), difference);
  return 0;
}
