#pragma once

#include "search/extract.h"
#include "search/found_list.h"
#include "search/page_search.h"
#include "search/searchable_pages.h"
#include "shell/shared_state.h"

#include <QBasicTimer>
#include <QDialog>

#include <optional>

class QLabel;

namespace look {
class Button;
class CheckBox;
class ListBox;
class ProgressBar;
class ReadingText;
class TextField;
} // namespace look

namespace search {

/// What was searched last, as typed; kept from one window to the next while the program runs.
struct LastSearch {
    QString typed; ///< empty before the first search
    bool allWords = false;
    bool ignoreAccents = false;
};

/// `coordon`: the search window, modal to the main window. It asks for words, lists the titles of
/// the pages that have them, and leaves the page chosen in SearchChosenPage. Each window is new and
/// so is what it knows of the course; what was searched last it offers on a button.
///
/// A search runs in turns between the window's messages: the bar moves and the window can be
/// closed, which ends it. It cannot start again meanwhile.
class Coordon : public QDialog {
public:
    /// `state`, `last` and `fonts` must outlive the window.
    Coordon(shell::SharedState& state, LastSearch& last, const page::FontBook& fonts,
            QWidget* mainWindow);
    ~Coordon() override;

    /// Longest time without a look at the window's messages, in milliseconds.
    void setTurn(int milliseconds) { turnMs_ = milliseconds; }

    /// What was searched last; nothing before the first search.
    const std::optional<Query>& query() const { return query_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void addControls();
    void addLastSearch();
    void addExtract();
    void nameControls();
    void orderFocus();
    void connectHandlers();

    void Form_Load();
    void Command2_Click();
    void Command3_Click();
    void List2_DblClick(const QModelIndex& line);

    bool isCourseRead() const;
    void searchOn();
    void showFound(std::vector<FoundPage> pages);
    void showList(bool shown);
    void keepMiddle(int before);
    void say(const QString& result, const QString& hint);
    void showExtract(const QModelIndex& line);
    void searchAgain();
    void choose(const QModelIndex& line);

    shell::SharedState& state_;
    LastSearch& last_;
    Extract extract_;
    std::optional<SearchablePages> pages_;
    std::optional<Query> query_;
    std::optional<PageSearch> search_;
    QBasicTimer turns_;
    int turnMs_;
    FoundList found_;

    look::TextField* Text1_ = nullptr;
    look::CheckBox* Checkmots_ = nullptr;
    look::CheckBox* accents_ = nullptr; ///< "Ignorer les accents"
    look::Button* Command1_ = nullptr;
    look::Button* Command2_ = nullptr;
    look::Button* Command3_ = nullptr;
    look::ListBox* List2_ = nullptr;
    look::ProgressBar* Pbar1_ = nullptr;
    QLabel* Label2_ = nullptr; ///< the notice that no page was found
    QLabel* count_ = nullptr;  ///< how many were found
    QLabel* hint_ = nullptr;   ///< what could be tried, right of either
    QLabel* extractTitle_ = nullptr;
    look::ReadingText* extractText_ = nullptr;
    look::Button* again_ = nullptr; ///< takes up what was searched last
};

} // namespace search
