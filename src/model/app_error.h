#pragma once
// The program's one failure shape: a numbered error with a description and the procedure that raised it.

#include <stdexcept>
#include <string>

namespace lw {

// Numbers 800 to 899 are the program's own Data Errors; every other number is a Program Error.
class AppError : public std::runtime_error {
public:
    AppError(int number, std::string description, std::string source = {})
        : std::runtime_error(description), number_(number), description_(std::move(description)),
          source_(std::move(source)) {}

    int number() const { return number_; }
    const std::string& description() const { return description_; }
    const std::string& source() const { return source_; }

private:
    int number_;
    std::string description_;
    std::string source_;
};

// Thrown by a driver whose program ends at once: it passes through every error tail to the driver.
struct ProgramEnded {};

inline bool isDataError(int number) { return number >= 800 && number <= 899; }

// Run-time faults keep the numbers the operator would recognise from the classic runtime.
namespace err {
constexpr int kInvalidProcedureCall = 5;
constexpr int kDivisionByZero = 11;
constexpr int kSubscriptOutOfRange = 9;
constexpr int kTypeMismatch = 13;
constexpr int kFileNotFound = 53;
constexpr int kPermissionDenied = 70;
constexpr int kPathNotFound = 76;
constexpr int kControlArrayElementMissing = 340;
constexpr int kObjectRequired = 424;
}  // namespace err

}  // namespace lw
