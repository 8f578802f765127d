#pragma once

#include <stdexcept>
#include <string>

namespace quorin {

// Failures that the code where they arise does not handle. The top level of the program
// (start-up, a window handler, the command line) shows what() as a full sentence.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A setting or a number in a file is not of the kind expected.
class TypeMismatchError : public Error {
  public:
    using Error::Error;
};

// A number too large for the whole-number type that it is read into.
class OverflowError : public Error {
  public:
    using Error::Error;
};

// An index beyond a fixed table's bound.
class OutOfRangeError : public Error {
  public:
    using Error::Error;
};

// A key added to a keyed collection that already holds it.
class DuplicateKeyError : public Error {
  public:
    using Error::Error;
};

// A file that cannot be opened, read, written or replaced, or whose contents are malformed.
class FileError : public Error {
  public:
    using Error::Error;
};

}  // namespace quorin
