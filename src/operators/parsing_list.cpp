#include "operators/parsing_list.h"

#include <string>

#include "disk/text_lines.h"
#include "operators/dictionary_entry.h"
#include "text/unicode.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// What the guidance box says about reading a dictionary.
struct Guidance {
  const char32_t* read;
  const char32_t* notRead;
};

void ReadInto(Form1& form, std::u32string_view dictionary, const Guidance& guidance) {
  const char32_t* message = guidance.notRead;
  CarryOn([&] {
    form.Parse_listbox.AddItems(DecodeLines(form.TheDisk().Read(EncodePath(dictionary))));
    message = guidance.read;
  });
  form.Parse_listbox.ListIndex = -1;
  form.User_Dialogue.Text = message;
}

}  // namespace

void Add_global_parsing_list_Click(Form1& form) {
  ReadInto(form, kGlobalDictionary,
           {.read = U"The pre-defined global temporal operator terms have been added to the "
                    U"parsing list.",
            .notRead = U"There is no global dictionary yet: it is made when the first term is "
                       U"added to it."});
}

void Add_specific_parsing_list_Click(Form1& form) {
  ReadInto(form, form.WorkState.SpecificDictFile.Get(),
           {.read = U"The temporal operators unique to the current text base file have been added "
                    U"to the parsing list.",
            .notRead = U"The dictionary of this text could not be read."});
}

void Parse_listbox_Click(Form1& form) {
  form.WorkState.ParseIndex = form.Parse_listbox.ListIndex.Get();
}

void Parse_cull_Click(Form1& form) {
  ListBox& list = form.Parse_listbox;
  if (list.ListIndex == -1) return;
  const int index = list.ListIndex;
  CarryOn([&] { form.TempList.AddItem(list.List(index)); });
  CarryOn([&] { list.RemoveItem(index); });
  list.ListIndex = -1;
  form.Undo_Parse_Cull.Enabled = true;
}

void Undo_Parse_Cull_Click(Form1& form) {
  CarryOn([&] { form.Parse_listbox.AddItem(form.TempList.List(0)); });
  form.TempList.Clear();
  form.Undo_Parse_Cull.Enabled = false;
}

void Deselect_Parse_Cull_Click(Form1& form) { form.Parse_listbox.ListIndex = -1; }

void Clear_list_Click(Form1& form) { form.Parse_listbox.Clear(); }

}  // namespace quill
