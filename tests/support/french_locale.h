#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

namespace test_support {

/// While it lives, the process counts as French programs do, with "," before the decimals. The
/// locale is compiled with the tests (FRENCH_LOCALES), so it is there on every system that can;
/// Windows always has its own.
class FrenchLocale {
public:
    FrenchLocale() {
#ifdef _WIN32
        EXPECT_TRUE(std::setlocale(LC_ALL, "French_France.1252"));
#else
        setenv("LOCPATH", FRENCH_LOCALES, 1);
        EXPECT_TRUE(std::setlocale(LC_ALL, "fr_FR.UTF-8")) << "no locale in " FRENCH_LOCALES;
#endif
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    }
    ~FrenchLocale() {
        std::setlocale(LC_ALL, before_.c_str());
#ifndef _WIN32
        unsetenv("LOCPATH");
#endif
    }
    FrenchLocale(const FrenchLocale&) = delete;
    FrenchLocale& operator=(const FrenchLocale&) = delete;

private:
    std::string before_ = std::setlocale(LC_ALL, nullptr);
};

} // namespace test_support
