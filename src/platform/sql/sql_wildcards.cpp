#include "platform/sql/sql_wildcards.h"

namespace trimlog {

namespace {

// One element of a pattern: where it ends, and whether it takes this character.
struct Step {
  qsizetype next;
  bool matches;
};

Step MatchList(QChar c, QStringView pattern, qsizetype at) {
  const qsizetype close = pattern.indexOf(QLatin1Char(']'), at + 1);
  if (close < 0) return {at + 1, c == QLatin1Char('[')};
  qsizetype i = at + 1;
  const bool inverted = i < close && pattern[i] == QLatin1Char('!');
  if (inverted) ++i;
  bool found = false;
  while (i < close) {
    const QChar low = pattern[i].toCaseFolded();
    if (i + 2 < close && pattern[i + 1] == QLatin1Char('-')) {
      found = found || (c >= low && c <= pattern[i + 2].toCaseFolded());
      i += 3;
    } else {
      found = found || c == low;
      ++i;
    }
  }
  return {close + 1, found != inverted};
}

Step MatchOne(QChar raw, QStringView pattern, qsizetype at) {
  const QChar c = raw.toCaseFolded();
  const QChar p = pattern[at];
  if (p == QLatin1Char('?')) return {at + 1, true};
  if (p == QLatin1Char('#')) return {at + 1, raw.isDigit()};
  if (p == QLatin1Char('[')) return MatchList(c, pattern, at);
  return {at + 1, c == p.toCaseFolded()};
}

}  // namespace

bool MatchesWildcards(QStringView text, QStringView pattern) {
  // The last star can take up more characters when what follows it fails; earlier stars never need to.
  qsizetype t = 0, p = 0, starPattern = -1, starText = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == QLatin1Char('*')) {
      starPattern = ++p;
      starText = t;
      continue;
    }
    if (p < pattern.size()) {
      const Step step = MatchOne(text[t], pattern, p);
      if (step.matches) {
        p = step.next;
        ++t;
        continue;
      }
    }
    if (starPattern < 0) return false;
    p = starPattern;
    t = ++starText;
  }
  while (p < pattern.size() && pattern[p] == QLatin1Char('*')) ++p;
  return p == pattern.size();
}

}  // namespace trimlog
