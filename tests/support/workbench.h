// The program with fakes around it, and texts drawn as strings.
//
// A drawing has one letter per character: '.' black, 'a' and 'b' in the colour of the two kinds of
// mark, 'l' in the light blue of an automatic mark; the same letter as a capital, and '_' for
// black, is underlined.
#pragma once

#include <string>
#include <string_view>

#include "program/program.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace quill::test {

// A text without a file behind it: usable for everything but saving.
Document Painted(std::u32string_view text, std::string_view drawing);

// The colours and underlines of the text.
std::string Drawing(const TextSurface& surface);

// The fields of the record, one per line.
std::string Fields(const WorkState& state);

struct Workbench {
  MemoryDisk disk;
  ScriptedDialogs dialogs;
  Program program{dialogs, disk};
  Form1& form = program.Form();
  TextSurface& text = form.RichTextBox1;

  // Sets the text and shows the frame of its mode, as after opening a text.
  void ShowText(std::u32string_view characters, std::string_view drawing);
  // Opens a file, with these answers from the user.
  void Open(std::initializer_list<ScriptedDialogs::Answer> answers);
};

}  // namespace quill::test
