#pragma once

#include <exception>
#include <string>
#include <utility>

namespace runtime {

/// The one exception of the product: a numbered run-time error, as the suite's language and its database
/// engine number them. Descriptions are short, in Italian, and name the object concerned.
class Error : public std::exception {
 public:
  Error(int number, std::string source, std::string description)
      : number_(number), source_(std::move(source)), description_(std::move(description)) {}

  int number() const { return number_; }
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

  /// Appends where it happened (" - tabella X", " - riga 12") while the error travels up.
  void addPlace(const std::string& place) { description_ += " - " + place; }

 private:
  int number_;
  std::string source_;
  std::string description_;
};

/// Numbers of the language itself.
enum ErrorNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceIoError = 57,
  FileAlreadyExists = 58,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  InvalidUseOfNull = 94,
};

/// An Error of the language with its own description for `number`.
Error languageError(ErrorNumber number);

}  // namespace runtime
