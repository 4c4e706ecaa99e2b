#include "workbench/guidance.h"

namespace quill {
namespace {

std::u32string Blanks(std::size_t count) { return std::u32string(count, U' '); }

}  // namespace

std::u32string ProcessGuidance() {
  return U"To proceed to the markup functions, select the relevant option from the Process-Menu: " +
         Blanks(67) + U"Select >>Pre-Process<< to identify textual elements requiring markup." +
         Blanks(67) +
         U"Select >>Post-Process<< to describe the textual elements highlighted during "
         U"Pre-Processing.";
}

std::u32string PreProcessModeText() {
  return U"In Pre-Processing mode, you identify the textual elements that carry information about "
         U"time, the so-called >>temporal operators<<. We distinguish between A- and "
         U"B-operators:" +
         Blanks(67) +
         U"A-operators control the way in which we build up a mental image of the world "
         U"represented in the text: they determine what a reader will consider to fall into past, "
         U"present or future at any given >>point in text<<." +
         Blanks(65) +
         U"B-operators help us to structure a represented world internally in terms of "
         U"before-after "
         U"relations among its elements and events.";
}

std::u32string PostProcessModeText() {
  return U"In Post-Processing mode, you give a detailed semantic definition of >>temporal "
         U"operators<< highlighted during pre-processing. Simply select definitions from the "
         U"selection boxes and enter your own descriptions into the text fields provided in the "
         U"Post-Processing frame.";
}

std::u32string PreProcessIntro() {
  return U"The current interface is dedicated to the pre-processing of a text. 'Pre-processing' "
         U"consists of the manual and/or automatic highlighting of terms which act as 'temporal "
         U"operators'. A temporal operator is any word or phrase which influences our "
         U"understanding of the depicted world in terms of its temporal order. Temporal operators "
         U"can either contain information about the chronological order of events happening in "
         U"that world - these we call 'B-Operators'. However, many terms, phrases and structural "
         U"devices (paragraph marks, chapter headings etc.) serve another function: rather than "
         U"indicating the 'objective' temporal order of events within the narrated world, they "
         U"control HOW we, the readers, arrange the various bits of information. These are the "
         U"'A-Operators'(blue).";
}

}  // namespace quill
