#include "companion/export_csv.h"

#include "companion/csv.h"
#include "companion/output.h"
#include "companion/tagged_text.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

std::vector<std::string> ReferenceFields(const Tag& tag, const TagList& list,
                                         const References& references) {
  const std::optional<Reference> reference = ReferenceOf(tag);
  if (!reference) return {"", "", "", ""};
  std::vector<std::string> fields = {ToUtf8(reference->term), "", "", ""};
  if (!reference->span) return fields;
  fields[1] = std::to_string(reference->span->begin);
  if (reference->span->end >= 0) fields[2] = std::to_string(reference->span->end);
  if (const auto target = references.TargetOf(tag)) {
    fields[3] = std::to_string(list.tags[*target].line);
  }
  return fields;
}

void AppendTag(std::string& table, const TaggedText& text, const TagList& list,
               const References& references, const Tag& tag) {
  const auto given = [&](std::size_t field) { return ToUtf8(Given(tag, field)); };
  std::vector<std::string> fields = {PathText(text.path),
                                     std::to_string(tag.line),
                                     given(TagField::kId),
                                     std::to_string(tag.span.begin),
                                     std::to_string(tag.span.end),
                                     given(TagField::kTerm),
                                     ToUtf8(text.text.At(tag.span)),
                                     given(TagField::kSessionId),
                                     given(TagField::kUserId),
                                     given(TagField::kClass),
                                     given(TagField::kOperator),
                                     given(TagField::kMode),
                                     given(TagField::kType),
                                     given(TagField::kGranularity),
                                     given(TagField::kValue)};
  for (std::string& field : ReferenceFields(tag, list, references)) {
    fields.push_back(std::move(field));
  }
  AppendCsvRow(table, fields);
}

}  // namespace

void ExportCsv(const Options& options, Console& console) {
  Output output(options, console);
  output.Write(
      "file,line,id,start,end,term,covered,session,user,class,operator,mode,type,granularity,"
      "value,ref_term,ref_start,ref_end,ref_line\r\n");
  ForEachSoundText(options, console, [&](const TaggedText& text) {
    std::string table;
    for (const TagList& list : text.lists) {
      const References references(list);
      for (const Tag& tag : list.tags) AppendTag(table, text, list, references, tag);
    }
    output.Write(table);
  });
  output.Finish();
}

}  // namespace quill::companion
