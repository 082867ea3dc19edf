// Command lines up to where they would act.
#include "console/names.h"
#include "console/refusal.h"
#include "console/words.h"
#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {
namespace {

void Read(Names& names, std::string_view line) {
  Words words(line);
  if (words.AtEnd()) return;
  words.Next("a command");
  const Named named = names.Find(words.Next("a name"));
  TextOf(named);
  Words(words).NextNumber("a number");
  if (named.variable) SetVariable(*named.variable, words.Rest());
  while (!words.AtEnd()) words.Next("a word");
  words.ExpectEnd();
}

}  // namespace

void Take(std::string_view input) {
  static Game game;
  // Made afresh, since every list that is named exists from then on.
  Names names(game.program);
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    try {
      Read(names, input.substr(0, end));
    } catch (const Refusal&) {
    } catch (const RuntimeError&) {
    }
    input.remove_prefix(std::min(end + 1, input.size()));
  }
}

}  // namespace frostmark::test
