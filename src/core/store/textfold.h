#pragma once
// Text compared without regard to case, for every letter: "émile" equals "Émile", "zoë" equals
// "ZOË". Both work on UTF-8 as the store keeps text; ASCII bytes are compared directly and a
// letter is folded only where a byte above ASCII appears.

namespace textfold {

// <0, 0 or >0: the order of the two texts with each letter folded to its case-free form. On
// ASCII text this is the order of SQLite's NOCASE, so indexes built under either agree.
int Compare(const char* a, int alen, const char* b, int blen);

// Whether text matches a "like" pattern: "%" any run of characters, "_" one character, escape
// (when not 0) makes the character after it plain. Letters match without regard to case.
bool Like(const char* pattern, int plen, const char* text, int tlen, char32_t escape = 0);

}  // namespace textfold
