// qor_accuracy: what does the documentation say of the library's accuracy?
//
//   qor_accuracy                prints the section
//   qor_accuracy --write FILE   puts it between FILE's two marks
//
// Fails, too, if a family misses its limit.
#include <fstream>
#include <iostream>
#include <sstream>

#include "accuracy.h"

namespace {

const std::string kFirstMark = "<!-- made by qor_accuracy -->\n",
                  kLastMark = "<!-- end of what qor_accuracy made -->\n";

int fail(const std::string& message) {
  std::cerr << "qor_accuracy: " << message << "\n";
  return 1;
}

int write(const std::string& file, const std::string& text) {
  std::stringstream content;
  if (!(content << std::ifstream(file).rdbuf())) return fail("can't read " + file);
  const std::string all = content.str();
  const size_t first = all.find(kFirstMark), last = all.find(kLastMark);
  if (first == std::string::npos || last == std::string::npos || last < first)
    return fail("no marks in " + file);
  std::ofstream out(file);
  out << all.substr(0, first + kFirstMark.size()) << text << all.substr(last);
  out.close();
  return out ? 0 : fail("can't write " + file);
}

}  // namespace

int main(int argc, char** argv) {
  const bool hasFile = argc == 3 && std::string(argv[1]) == "--write";
  if (argc > 1 && !hasFile) return fail("usage: qor_accuracy [--write FILE]");
  std::vector<std::string> complaints;
  const std::string text = section(&complaints);
  if (!hasFile) std::cout << text;
  int result = hasFile ? write(argv[2], text) : 0;
  for (const std::string& c : complaints) result = fail(c);
  return result;
}
