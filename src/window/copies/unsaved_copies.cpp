#include "window/copies/unsaved_copies.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "rtf/writer.h"
#include "text/unicode.h"
#include "workbench/failure.h"

namespace quill {

UnsavedCopies::UnsavedCopies(const Form1& form, std::string folder)
    : UnsavedCopies(form, std::move(folder), Pace()) {}

UnsavedCopies::UnsavedCopies(const Form1& form, std::string folder, Pace pace)
    : form_(form), folder_(std::move(folder)), pace_(pace) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { WriteInPause(); });
}

UnsavedCopies::~UnsavedCopies() {
  TextLeaves();
  folder_.Prune();
}

void UnsavedCopies::Look() {
  FollowPath();
  if (!Text().HasUnsavedChanges()) return Drop();
  HasWritten(std::chrono::milliseconds(0));
  if (!MustWrite()) return timer_.stop();
  if (!timer_.isActive()) latest_ = QDeadlineTimer(pace_.latest);
  const std::chrono::milliseconds left(latest_.remainingTime());
  timer_.start(std::min(pace_.pause, left));
}

void UnsavedCopies::TextLeaves() {
  Take();
  copied_.reset();
  copy_.reset();
  opened_.reset();
  path_.clear();
}

void UnsavedCopies::Take() {
  timer_.stop();
  AwaitWriting();
  if (MustWrite() && Write(Text().Doc(), TextPath())) copied_ = Text().Doc().Changes();
}

bool UnsavedCopies::MustWrite() const {
  return Text().HasUnsavedChanges() && copied_ != Text().Doc().Changes();
}

void UnsavedCopies::FollowPath() {
  if (Text().FilePath() == path_) return;
  path_ = Text().FilePath();
  opened_.reset();
  CarryOn([&] { opened_ = folder_.Use(EncodePath(path_)); });
  folder_.Prune();
}

std::string UnsavedCopies::TextPath() const {
  if (opened_) return opened_->TextPath();
  if (path_.empty()) return {};
  std::error_code failure;
  const std::filesystem::path absolute = std::filesystem::absolute(EncodePath(path_), failure);
  return absolute.lexically_normal().string();
}

void UnsavedCopies::Drop() {
  timer_.stop();
  AwaitWriting();
  copied_.reset();
  // The user may have saved over the copy itself.
  if (copy_ && copy_->Path() != EncodePath(path_)) copy_->Remove();
  copy_.reset();
}

void UnsavedCopies::WriteInPause() {
  if (!MustWrite()) return;
  if (!HasWritten(std::chrono::milliseconds(0))) return timer_.start(pace_.pause);
  writing_ = std::async(std::launch::async,
                        [this, document = Text().Doc(), textPath = TextPath()]() mutable {
                          // Destroyed in the thread.
                          const Document text = std::move(document);
                          return Write(text, textPath);
                        });
  copied_ = Text().Doc().Changes();
}

bool UnsavedCopies::HasWritten(std::chrono::milliseconds wait) {
  if (!writing_.valid()) return true;
  if (writing_.wait_for(wait) != std::future_status::ready) return false;
  if (!writing_.get()) copied_.reset();
  return true;
}

void UnsavedCopies::AwaitWriting() {
  while (!HasWritten(std::chrono::hours(1))) {
  }
}

bool UnsavedCopies::Write(const Document& document, const std::string& textPath) {
  try {
    if (!copy_) copy_ = folder_.Make(textPath);
    copy_->Write(rtf::Write(document));
    return true;
  } catch (const std::exception& failure) {
    Tell(failure);
    return false;
  }
}

void UnsavedCopies::Tell(const std::exception& failure) {
  if (std::exchange(told_, true)) return;
  std::fprintf(stderr, "quillorandix: unsaved changes are not kept: %s\n", failure.what());
}

}  // namespace quill
