#include "tour/tour.h"

#include <QTest>
#include <string_view>

#include "text/marks.h"
#include "window/shared/shown.h"
#include "workbench/form1.h"

namespace quill::tour {
namespace {

void Expect(bool holds, const std::string& what) {
  if (!holds) throw HandsFailed("not as it should be: " + what);
}

std::u32string Utf32(const char* text) { return FromQt(QString::fromUtf8(text)); }

}  // namespace

Tour::Tour(const QString& folder, Album& album)
    : Hands(ShownProgram::window), folder_(folder), album_(album) {
  dialogs.Attach(window, form);
  window.resize(window.sizeHint());
  window.show();
  ComeToFront();
}

void Tour::Play() {
  Begin();
  MarkByHand();
  UseDictionaries();
  SearchAndConfirm();
  BeginSecondMode();
  TagDate();
  TagWithReference();
  TagOthers();
  LookAtTags();
  Remove();
  Save();
  Check();
}

const std::vector<std::u32string>& Tour::Tags() {
  // A tag is longer than a line: two literals make one tag.
  // NOLINTBEGIN(bugprone-suspicious-missing-comma)
  static const std::vector<std::u32string> kTags = {
      U"t_op(1\\ 37\\ 50\\ 3 October 1911\\ first reading\\ reader A\\ lexematic\\ b_operator\\ "
      U"absolute \\ at\\ d \\ 1911-10-03\\ Reference Tag\\  \\   )",
      U"t_op(2\\ 394\\ 410\\ nine years before\\ first reading\\ reader A\\ lexematic\\ "
      U"b_operator\\ relative\\ before\\ year \\ 9\\ 3 October 1911\\ 37\\ 50 )",
      U"t_op(4\\ 368\\ 374\\ had sat\\ first reading\\ reader A\\ grammatic\\ a_operator\\ "
      U"relative\\ before\\ vague\\ pluperfect\\ 3 October 1911\\ 37\\ 50 )",
      U"t_op(5\\ 586\\ 592\\ tonight\\ first reading\\ reader A\\ lexematic\\ a_operator\\ "
      U"relative\\ while\\ d \\ the evening of the question\\ nine years before\\ 394\\ 410 )",
      U"t_op(6\\ 732\\ 734\\ Now\\ first reading\\ reader A\\ rhetorical\\ a_operator\\ "
      U"absolute \\ at\\ instant \\ back on the bench\\ Reference Tag\\  \\   )",
  };
  // NOLINTEND(bugprone-suspicious-missing-comma)
  return kTags;
}

// --- The steps -------------------------------------------------------------------------------

void Tour::Begin() {
  Choose("mnuDialogue_on");
  Replace("UserID1", "reader A");
  Replace("SessionID", "first reading");
  Picture("started");
  Press("CloseIDFrame");
  dialogHands_.AtNext([](QDialog& dialog) { DialogHands::TypeName(dialog, "the-ferry.rtf"); });
  dialogHands_.AtNext([](QDialog& dialog) { DialogHands::TypeName(dialog, "the-ferry.tbf"); });
  Choose("mnuFileOpen");
  FinishDialogs();
  Expect(form.PreFrame.Visible, "the first mode is on after an opening");
  Picture("opened");
  Choose("mnuDialogue_off");
}

void Tour::MarkByHand() {
  Mark("3 October 1911", "DefBMarker", "BMarkSet");
  Mark("had sat", "DefAMarker", "AMarkSet");
  Mark("nine years before", "DefBMarker", "BMarkSet");
  Define("tonight", "DefAMarker");
  Picture("defined");
  Press("AMarkSet");
  Picture("marked");
}

void Tour::UseDictionaries() {
  Replace("add_to_dictionary", "for the first time");
  Press("Text2");
  Keys("opens a series");
  Press("B_type_add");
  Picture("dictionary");
  Press("Add_to_spec_dict");
  Press("Add_global_parsing_list");
  ChooseTerm("until");
  Press("Parse_2");
  Expect(At("until").bold, "a term is marked by the automatic search");
  Picture("searched");
}

void Tour::SearchAndConfirm() {
  ChooseTerm("now");
  for (const char* const hit : {"know", "Now", "known", "now", "know"}) {
    const bool isOperator = std::string_view(hit).size() == 3;
    dialogHands_.AtNext([=, this](QDialog& box) {
      if (std::string_view(hit) == "Now") Picture("question", &box);
      DialogHands::Press(box, isOperator ? QMessageBox::Yes : QMessageBox::No);
    });
  }
  Press("Parse_3");
  FinishDialogs();
}

void Tour::BeginSecondMode() {
  Choose("mnuPostProcess");
  Choose("mnuDialogue_on");
  Press("FindBMarker");
  ExpectFound("3 October 1911");
  Picture("found");
  Choose("mnuDialogue_off");
}

void Tour::TagDate() {
  Describe("lexematic", "b_operator", "absolute", "at", "d", "1911-10-03");
  Picture("described");
  Press("Generate_Tag");
}

void Tour::TagWithReference() {
  Press("FindBMarker");
  ExpectFound("nine years before");
  Describe("lexematic", "b_operator", "relative", "before", "year", "9");
  Refer("3 October 1911");
  Picture("reference");
  Press("Generate_Tag");
}

void Tour::TagOthers() {
  Press("FindBMarker");
  ExpectFound("until");
  Describe("lexematic", "b_operator", "absolute", "finishes", "d", "the day after");
  Press("Generate_Tag");
  Press("Restart_PP");
  Press("FindAMarker");
  ExpectFound("had sat");
  Describe("grammatic", "a_operator", "relative", "before", "vague", "pluperfect");
  Refer("3 October 1911");
  Press("Generate_Tag");
  Press("FindAMarker");
  ExpectFound("tonight");
  Describe("lexematic", "a_operator", "relative", "while", "d", "the evening of the question");
  Refer("nine years before");
  Press("Generate_Tag");
  Press("FindAMarker");
  ExpectFound("Now");
  Describe("rhetorical", "a_operator", "absolute", "at", "instant", "back on the bench");
  Press("Generate_Tag");
  Picture("tagged");
}

void Tour::LookAtTags() {
  ClickRow("TagList", 1);
  Expect(form.RichTextBox1.SelText() == U"nine years before", "a chosen tag selects its term");
  Picture("selected");
  const Position tonight = MiddleOf("tonight");
  WheelTo(tonight);
  ClickAt(tonight);
  Press("TagChecker");
  Expect(form.TagList.ListIndex == 4, "the tag at the caret is found");
  Picture("checked");
}

void Tour::Remove() {
  ClickRow("TagList", 2);
  dialogHands_.AtNext([this](QDialog& box) {
    Picture("removing", &box);
    DialogHands::Press(box, QMessageBox::Ok);
  });
  Press("RemoveItem");
  FinishDialogs();
  Expect(At("until") == Attributes(), "a term without a tag is plain again");
  Press("FindBMarker");
  ExpectFound("Until");
  Picture("removed");
}

void Tour::Save() {
  dialogHands_.AtNext([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  Choose("mnuFileSave");
  FinishDialogs();
}

// --- What came of it -------------------------------------------------------------------------

void Tour::Check() const {
  const Attributes blue{kMarkedA, false, false, 0};
  const Attributes red{kMarkedB, false, false, 0};
  const struct {
    const char* term;
    Attributes expected;
  } kMarks[] = {{"3 October 1911", red},
                {"nine years before", red},
                {"had sat", blue},
                {"tonight", blue},
                {"Now", blue}};
  for (const auto& [term, expected] : kMarks) {
    Attributes mark = At(term);
    Expect(mark.offset > 0, std::string(term) + " is raised");
    mark.offset = 0;
    Expect(mark == expected, std::string(term) + " bears the mark of a tagged term");
  }
  std::string file;
  for (const std::u32string& tag : Tags()) file += ToQt(tag).toStdString() + "\r\n";
  std::string listed;
  for (const std::u32string& tag : form.TagList.Items()) listed += ToQt(tag).toStdString() + "\r\n";
  Expect(listed == file, "the tag list is\n" + listed);
  Expect(PosixDisk().Read((folder_ + QStringLiteral("/the-ferry.tlf")).toStdString()) == file,
         "the file of the tags holds the list");
  Expect(PosixDisk()
                 .Read((folder_ + QStringLiteral("/the-ferry.tbf")).toStdString())
                 .find("nine years before}") != std::string::npos,
         "the marks are saved");
}

// --- Hands -----------------------------------------------------------------------------------

void Tour::Picture(const char* name, QDialog* dialog) { album_.Take(window, name, dialog); }

void Tour::ComeToFront() {
  window.activateWindow();
  Expect(QTest::qWaitForWindowActive(&window), "the window comes to the front");
}

void Tour::FinishDialogs() {
  dialogHands_.Finish();
  // Without a window manager, the window does not get the keyboard back.
  ComeToFront();
}

void Tour::Define(const char* term, const char* define) {
  const Position begin = Find(term);
  WheelTo(begin);
  DragOver(begin, begin + static_cast<Position>(Utf32(term).size()));
  Press(define);
}

void Tour::Mark(const char* term, const char* define, const char* set) {
  Define(term, define);
  Press(set);
  Expect(At(term).bold, std::string(term) + " is marked");
}

void Tour::ChooseTerm(const char* lemma) {
  const std::u32string begin = Utf32(lemma) + U"\\";
  for (int row = 0; row < form.Parse_listbox.ListCount(); ++row) {
    if (!form.Parse_listbox.List(row).starts_with(begin)) continue;
    WheelToRow("Parse_listbox", row);
    ClickRow("Parse_listbox", row);
    return;
  }
  throw HandsFailed(std::string("the list lacks ") + lemma);
}

void Tour::Describe(const char* tagClass, const char* op, const char* mode, const char* type,
                    const char* granularity, const char* value) {
  Pick("ClassCombo", tagClass);
  Pick("OperatorCombo", op);
  Pick("ModeCombo", mode);
  Pick("TypeCombo", type);
  Pick("GranCombo", granularity);
  Replace("ValBox", value);
}

void Tour::Refer(const char* term) {
  WheelTo(MiddleOf(term));
  ClickAt(MiddleOf(term));
  Press("RefTag");
  Expect(form.RefBox.Text.Get() == Utf32(term), std::string(term) + " is the reference");
}

Position Tour::Find(const char* term) const {
  const std::size_t at = form.RichTextBox1.Text().find(Utf32(term));
  Expect(at != std::u32string::npos, std::string("the text holds ") + term);
  return static_cast<Position>(at);
}

Position Tour::MiddleOf(const char* term) const {
  return Find(term) + static_cast<Position>(Utf32(term).size()) / 2;
}

void Tour::ExpectFound(const char* term) const {
  Expect(form.marked_term.Text.Get() == Utf32(term), std::string("the next marker is ") + term);
}

Attributes Tour::At(const char* term) const { return form.RichTextBox1.Doc().At(Find(term)); }

}  // namespace quill::tour
