// What the text and JSON layouts share: one output string, and brackets and separators
// around nested structures and arrays.
#pragma once

#include "tracing/FieldVisitor.h"
#include "tracing/Nesting.h"

#include <string>

namespace Orvane::tracing {

/// A FieldVisitor that appends to one string, writing containers as "{ ... }" and
/// "[ ... ]" with the blanks and separators its layout gives.
class NestedLayout : public FieldVisitor {
public:
  /// What a layout puts between the parts of a container.
  struct Punctuation {
    const char* beforeFirst; ///< after the opening bracket, before the first item
    const char* between;     ///< between two items
    const char* beforeClose; ///< before the closing bracket
  };

  NestedLayout(std::string& out, Punctuation punctuation) : out_(out), punctuation_(punctuation) {}

  void endScope(Scope) override { close('}'); }
  void boolean(bool value) override { out_ += value ? "true" : "false"; }
  void none() override { out_ += "null"; }
  void beginStructure() override { open('{'); }
  void endStructure() override { close('}'); }
  void beginArray() override { open('['); }
  void endArray() override { close(']'); }

protected:
  void open(char bracket) {
    out_ += bracket;
    nesting_.open();
  }
  void close(char bracket) {
    out_ += punctuation_.beforeClose;
    out_ += bracket;
    nesting_.close();
  }
  /// Writes what goes before the next item of the innermost container.
  void separate() { out_ += nesting_.nextItem() ? punctuation_.between : punctuation_.beforeFirst; }
  /// Forgets the containers of the event before.
  void resetNesting() { nesting_.reset(); }

  std::string& out_;

private:
  Punctuation punctuation_;
  Nesting nesting_;
};

} // namespace Orvane::tracing
