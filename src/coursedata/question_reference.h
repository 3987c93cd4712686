#pragma once

namespace coursedata {

/// What tells a question is its reference: the chapter times this, plus the question's number from
/// 1. Chapter 3 has the questions 301 to 399.
inline constexpr int kReferencesPerChapter = 100;

} // namespace coursedata
