#pragma once

#include "support/files.h"

#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

/// The window of a module, and what somebody finds in it.
class WindowCase : public testing::Test {
protected:
    template <class Window, class Opening>
    void open(const Opening& opening) {
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        window_ = std::make_unique<Window>(opening);
        window_->show();
        window_->activateWindow();
    }
    template <class Widget>
    Widget* named(const QString& name) {
        for (auto* widget : window_->findChildren<Widget*>()) {
            if (widget->accessibleName() == name)
                return widget;
        }
        ADD_FAILURE() << qPrintable(name);
        return nullptr;
    }
    QPushButton* button(const QString& caption) {
        for (auto* found : window_->findChildren<QPushButton*>()) {
            if (found->text() == caption)
                return found;
        }
        return nullptr;
    }
    bool says(const QString& text) {
        for (const QLabel* label : window_->findChildren<QLabel*>()) {
            if (label->isVisibleTo(window_.get()) && label->text().contains(text))
                return true;
        }
        return false;
    }

    std::unique_ptr<QMainWindow> window_;
};
