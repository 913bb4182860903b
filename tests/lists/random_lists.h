// Random lists of what cells hold, numbers in every dress and text that is none.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/localized.h"
#include "support/random_numbers.h"

namespace quorvex {

class Random_Lists {
 public:
  explicit Random_Lists(unsigned seed) : random_(seed) {}

  Random_Numbers& random() { return random_; }

  /// One element, written in the locale in force.
  std::string element(std::size_t longest) {
    if (random_.one_in(12)) return junk();
    std::string text =
        random_.one_in(6) && !last_.empty() ? random_.neighbour(last_) : random_.number(longest);
    last_ = text;
    if (random_.one_in(8)) return Localized(with_exponent());
    if (random_.one_in(8)) text.insert(random_.below(text.size() + 1), 1, ',');
    if (random_.one_in(8)) text = in_parentheses(text);
    if (random_.one_in(8)) text = "'" + text + "'";
    return Localized(text);
  }

 private:
  std::string with_exponent() {
    std::string text = random_.one_in(2) ? "-" : "";
    text += random_.digits(1) + "." + random_.digits(1 + random_.below(8));
    return text + "E" + random_.one_of("+-") + std::to_string(random_.below(60));
  }

  static std::string in_parentheses(const std::string& text) {
    return "(" + text.substr(text.starts_with('-') ? 1 : 0) + ")";
  }

  std::string junk() {
    static const std::vector<std::string> kinds = {
        "ABC",  "1.2.3", "--5", "5 ",    "1E5", "1.5E+X",     "#VALUE!", "#NUM!",
        "#N/A", "TRUE",  "-",   "()",    ".",   "$",          "(5",      "",
        "'5",   "+5",    "-0",  "0.000", "E+1", "ERROR 2042", "1.2.3E+1"};
    return Localized(kinds[random_.below(kinds.size())]);
  }

  Random_Numbers random_;
  std::string last_;
};

}  // namespace quorvex
