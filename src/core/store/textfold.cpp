#include "core/store/textfold.h"

#include <QChar>
#include <array>

namespace textfold {
namespace {

inline char32_t AsciiFold(unsigned char c) { return (c >= 'A' && c <= 'Z') ? char32_t(c + 32) : char32_t(c); }

// The character at s[i] (UTF-8), folded; i moves past it. A byte that starts no valid sequence
// stands for itself.
char32_t NextFolded(const unsigned char* s, int n, int& i)
{
    const unsigned char c = s[i];
    if (c < 0x80) {
        ++i;
        return AsciiFold(c);
    }
    int len = 0;
    char32_t cp = 0;
    if ((c & 0xE0) == 0xC0) { len = 2; cp = c & 0x1F; }
    else if ((c & 0xF0) == 0xE0) { len = 3; cp = c & 0x0F; }
    else if ((c & 0xF8) == 0xF0) { len = 4; cp = c & 0x07; }
    if (len == 0 || i + len > n) {
        ++i;
        return 0xDC00 + c;   // a lone byte: a code that no valid character folds to
    }
    for (int k = 1; k < len; ++k) {
        const unsigned char cc = s[i + k];
        if ((cc & 0xC0) != 0x80) {
            ++i;
            return 0xDC00 + c;
        }
        cp = (cp << 6) | (cc & 0x3F);
    }
    i += len;
    return QChar::toCaseFolded(cp);
}

// Both texts ASCII: bytes compared through a fold table, no decoding.
bool LikeAscii(const unsigned char* p, int plen, const unsigned char* t, int tlen, int escape)
{
    static const auto fold = [] {
        std::array<unsigned char, 128> f{};
        for (int c = 0; c < 128; ++c) f[size_t(c)] = (c >= 'A' && c <= 'Z') ? (unsigned char)(c + 32) : (unsigned char)c;
        return f;
    }();
    int pi = 0, ti = 0, starP = -1, starT = 0;
    while (ti < tlen) {
        if (pi < plen) {
            const unsigned char pc = p[pi];
            if (pc == '%' && escape != '%') {
                while (pi < plen && p[pi] == '%') ++pi;
                if (pi == plen) return true;
                starP = pi;
                starT = ti;
                // Where the next character is plain, go straight to its next place in the text.
                const unsigned char want = p[pi];
                if (want != '_' && int(want) != escape) {
                    const unsigned char w = fold[want];
                    while (ti < tlen && fold[t[ti]] != w) ++ti;
                    if (ti == tlen) return false;
                    starT = ti;
                }
                continue;
            }
            if (int(pc) == escape && pi + 1 < plen) {
                if (fold[p[pi + 1]] == fold[t[ti]]) {
                    pi += 2;
                    ++ti;
                    continue;
                }
            } else if (pc == '_' || fold[pc] == fold[t[ti]]) {
                ++pi;
                ++ti;
                continue;
            }
        }
        if (starP < 0) return false;
        pi = starP;
        ti = ++starT;
    }
    while (pi < plen && p[pi] == '%') ++pi;
    return pi == plen;
}

bool AllAscii(const unsigned char* s, int n)
{
    for (int i = 0; i < n; ++i)
        if (s[i] >= 0x80) return false;
    return true;
}

}  // namespace

int Compare(const char* a, int alen, const char* b, int blen)
{
    const auto* x = reinterpret_cast<const unsigned char*>(a);
    const auto* y = reinterpret_cast<const unsigned char*>(b);
    int i = 0, j = 0;
    // ASCII on both sides: bytes compared directly.
    while (i < alen && j < blen && x[i] < 0x80 && y[j] < 0x80) {
        const char32_t p = AsciiFold(x[i]), q = AsciiFold(y[j]);
        if (p != q) return p < q ? -1 : 1;
        ++i;
        ++j;
    }
    while (i < alen && j < blen) {
        const char32_t p = NextFolded(x, alen, i), q = NextFolded(y, blen, j);
        if (p != q) return p < q ? -1 : 1;
    }
    if (i < alen) return 1;
    if (j < blen) return -1;
    return 0;
}

bool Like(const char* pattern, int plen, const char* text, int tlen, char32_t escape)
{
    const auto* p = reinterpret_cast<const unsigned char*>(pattern);
    const auto* t = reinterpret_cast<const unsigned char*>(text);
    if (escape < 0x80 && AllAscii(p, plen) && AllAscii(t, tlen)) return LikeAscii(p, plen, t, tlen, escape ? int(escape) : -1);
    int pi = 0, ti = 0;
    int starP = -1, starT = 0;   // where the last "%" was, and the text it has taken so far
    const char32_t folded = escape ? QChar::toCaseFolded(escape) : 0;
    while (ti < tlen) {
        if (pi < plen) {
            int next = pi;
            const char32_t pc = NextFolded(p, plen, next);
            if (pc == U'%' && !(escape && folded == U'%')) {
                while (next < plen && p[next] == '%') ++next;
                pi = next;
                starP = pi;
                starT = ti;
                if (pi == plen) return true;   // a trailing "%" takes the rest
                continue;
            }
            bool any = pc == U'_';
            char32_t want = pc;
            if (escape && pc == folded && next < plen) {
                want = NextFolded(p, plen, next);   // the escaped character is plain
                any = false;
            }
            int tnext = ti;
            const char32_t tc = NextFolded(t, tlen, tnext);
            if (any || tc == want) {
                pi = next;
                ti = tnext;
                continue;
            }
        }
        if (starP < 0) return false;
        // The last "%" takes one more character.
        NextFolded(t, tlen, starT);
        ti = starT;
        pi = starP;
    }
    while (pi < plen && p[pi] == '%') ++pi;
    return pi == plen;
}

}  // namespace textfold
