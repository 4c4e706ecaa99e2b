// A tour of the program: a short story worked through on the real window, with mouse and keyboard,
// from opening the text to its last tag.
#pragma once

#include <string>
#include <vector>

#include "disk/posix_disk.h"
#include "hands/dialog_hands.h"
#include "hands/hands.h"
#include "hands/shown_program.h"
#include "tour/album.h"
#include "window/window_dialogs.h"

namespace quill::tour {

class Tour : private ShownProgram<PosixDisk, WindowDialogs>, private Hands {
 public:
  // The folder holds the-ferry.rtf and globaldict.gdf and must be the current one. What the tour
  // saves is written there.
  Tour(const QString& folder, Album& album);

  // Throws HandsFailed if a step cannot be done or does not do what it should.
  void Play();
  // The lines of the tag list after the tour.
  static const std::vector<std::u32string>& Tags();

 private:
  void Begin();
  void MarkByHand();
  void UseDictionaries();
  void SearchAndConfirm();
  void BeginSecondMode();
  void TagDate();
  void TagWithReference();
  void TagOthers();
  void LookAtTags();
  void Remove();
  void Save();
  void Check() const;

  void ComeToFront();
  void FinishDialogs();
  void Picture(const char* name, QDialog* dialog = nullptr);
  void Define(const char* term, const char* define);
  void Mark(const char* term, const char* define, const char* set);
  void ChooseTerm(const char* lemma);
  void Describe(const char* tagClass, const char* op, const char* mode, const char* type,
                const char* granularity, const char* value);
  void Refer(const char* term);
  // Where the term first occurs in the text.
  Position Find(const char* term) const;
  Position MiddleOf(const char* term) const;
  void ExpectFound(const char* term) const;
  Attributes At(const char* term) const;

  QString folder_;
  Album& album_;
  DialogHands dialogHands_;
};

}  // namespace quill::tour
