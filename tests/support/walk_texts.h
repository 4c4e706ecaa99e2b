// The files that random users work with.
#pragma once

#include <map>
#include <string>

namespace quill::test {

using Files = std::map<std::string, std::string>;

// Texts with characters of one to four bytes, a table, a note, marks; companions with odd lines.
inline Files Texts() {
  return {
      {"a.rtf",
       R"({\rtf1\ansi\deff0{\fonttbl{\f0 Times;}}{\colortbl;\red0\green0\blue255;\red255\green0\blue0;}
Then {\cf1 caf\'e9} and {\cf2\b then} \u26085?\u26412? {\*\unknown x}{\footnote a note}\par
{\cf1\ul yesterday} \u-10179?\u-8704? {\cf2 the day} before\tab then\line {\cf1 t\cf2 h\cf0 en}\par})"},
      {"b.rtf",
       R"({\rtf1\ansi{\colortbl;\red0\green0\blue255;\red128\green128\blue255;}\pard{\cf1 One} row
\trowd\cellx900\cellx1800\intbl {\cf1 then}\cell two {\cf2 later}\cell\row
\trowd\rtlrow\clmgf\cellx900\clmrg\cellx1800\cellx4800 first{\footnote\chftn of a cell}\par {\cf1 then}\cell\cell\qc
before\par\cell\row\pard {\pict\emfblip\picw2000\pich900 00ff} end{\*\annotation why}\page {\cf1 now}})"},
      {"c.rtf", "plain \xC3\xA9t\xC3\xA9 then\r\nthen \xE6\x97\xA5 \xF0\x9F\x98\x80 end"},
      {"e.tbf", "{\\rtf1}"},
      {"bad.rtf", std::string("no\0text", 7)},
      {"a.tlf",
       "t_op(1\\ 6\\ 9\\ caf\xC3\xA9\\ S\\ U\\ lexematic\\ a_operator\\ absolute \\ at\\ d \\ 1\\ "
       "Reference Tag\\  \\   )\r\n\r\nno tag\nt_op(9\\ 900\\ 905\\ then\\ S\\ U\\ lexematic\\ "
       "b_operator\\ relative\\ after\\ d \\ Value ?\\ then\\ 6\\ 9 )"},
      {"a.spd", "-lemma- then A\r\n"},
      {"globaldict.gdf", ""},
  };
}

}  // namespace quill::test
