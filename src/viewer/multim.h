#pragma once

#include "look/screen_filling.h"
#include "markup/draw_page.h"
#include "page/faces/font_book.h"
#include "page/recording.h"
#include "page/spoken_page.h"
#include "platform/screen.h"
#include "shell/report_sink.h"
#include "shell/shared_state.h"
#include "shell/start_up.h"
#include "viewer/collaborators.h"
#include "viewer/key_map.h"
#include "viewer/main_commands.h"
#include "viewer/page_loader.h"
#include "viewer/page_view.h"
#include "viewer/video_view.h"
#include "viewer/window_size_rule.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace look {
class Button;
class Notice;
class PagePanel;
class PictureBox;
class Zoom;
} // namespace look

namespace viewer {

class ChapterBar;
class Cover;
class PageFinder;
class PageReader;
class PageSelection;
class Rail;
class Toolbar;
class VideoFrame;

/// The main window. It shows what the page loader tells it to and hands what its controls are asked
/// for to MainCommands; the controls have the names of the handlers.
///
/// Until Form_Load() has shown the first page, and while a command runs, its buttons and keys have
/// no effect: neither can start anew in the middle. Closed meanwhile, it closes when the work is at
/// the next point where it can end.
class Multim : public QWidget,
               public look::ScreenFilling,
               public PageView,
               public VideoView,
               public markup::DrawingWatcher,
               public shell::StartUpWindow,
               public shell::ReportSink,
               public PrintNotices {
public:
    Multim(shell::SharedState& state, const page::FontBook& fonts, const platform::Screen& screen);
    ~Multim() override;

    /// What the window works with; made after it, since most of it knows the window.
    struct Parts {
        MainCommands& commands;
        ActionDispatcher& actions;
        PageLoader& pages;
        Collaborators collaborators;
        look::Zoom& zoom;
        /// Start-up before the window sets itself up; false to end the program.
        std::function<bool()> startUp;
    };
    void attach(const Parts& parts);

    /// Starts the program: start-up, cover, page index, first page. The window appears with the
    /// cover. False when the program is to end, because start-up said so or because the window
    /// was closed meanwhile.
    bool Form_Load();

    /// The page that is shown, for who draws it.
    markup::DrawnPage& shownPage() { return shown_; }

    /// The frame of the video buttons, and where the video's picture goes.
    enum class VideoLayout { None, Closed, Open, Double };
    void setVideoLayout(VideoLayout layout);

    look::PictureBox& pageArea() { return *PictureTEXTE_; }
    /// The control that shows a surface; the page area for surfaces of other windows.
    look::PictureBox& box(page::SurfaceId surface);
    /// Scrolls so that this part of the page area shows, in its pixels.
    void reveal(const QRect& part);

    /// Runs the tag of a link or of a menu entry; without effect while other work is under way.
    void followLink(const QString& tag);

    /// Whether a command runs, a window that it has opened included.
    bool isWorking() const { return working_; }

    /// Where it belongs while it does not fill the screen, in its pixels.
    QRect ownPlace() const;

    // look::ScreenFilling
    void setFillsScreen(bool fills) override;

    // PageView
    void setPageVisible(bool visible) override;
    void resetLinks() override;
    void hideScrollBarAndVideoFrame() override;
    void clearPictures() override;
    void setCaption(const QString& caption) override;
    void setTitle(const QString& title) override;
    void showVideoFrame() override;
    void setBackEnabled(bool enabled) override;
    void setForwardEnabled(bool enabled) override;
    void fitPage() override;
    int scrolled() const override;
    void scrollTo(int twips) override;
    void setChapterButtons(bool previous, bool next) override;
    void setPrintable(bool printable) override;
    void setSummary(const QString& code, const QString& caption) override;
    void setReturnToTestVisible(bool visible) override;
    void tellUnreadablePage() override;
    void markWords(const FoundWords& words) override;
    void showHourglass() override;
    void restorePointer() override;

    // markup::DrawingWatcher
    void setBusy(bool busy) override;
    void refresh(page::SurfaceId surface) override;

    // shell::StartUpWindow
    void setWidth(double twips) override;
    void place(const shell::Placement& placement) override;
    void pumpPendingMessages() override; // of VideoView too

    // VideoView
    void setPictureVisible(bool visible) override;
    QSize pictureSize() const override;
    void showPicture(const QImage& picture) override;
    void setMarkerWidth(double twips) override;
    void setVideoStatus(const QString& words, bool playing, bool atEnd) override;

    // shell::ReportSink
    void report(const QString& line) override;

    // PrintNotices
    void tellPrinted(const QString& line, const std::function<void()>& show) override;

    /// Says in the place of the page that the course's database cannot be read, why, and what to
    /// do.
    void tellUnreadable(const QString& file, const QString& reason);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addControls();
    bool pageHasFocus() const;
    void takeFocusToPage();
    void changeButtons(const std::function<void()>& change);
    void connectHandlers();
    void watchPointer();
    look::Button& button(const char* name) const;

    // Form_Load, step by step.
    void prepareAreas();
    void showCover();
    bool buildIndex();
    void showFirstPage();

    void showPointer();
    bool Form_QueryUnload();
    void Form_Resize();
    void carryOut(const WindowSizeRule::Orders& orders);
    void layOut();
    WindowSizeRule::Window present() const;
    void perform(KeyCommand command);

    /// Runs `task`, unless other work is under way; closes the window afterwards if that was asked
    /// for meanwhile.
    void work(const std::function<void()>& task);

    void apres_Click();
    void avant_Click();
    void suite_Click();
    void avantcours_Click();
    void Command2_Click();
    void command6_Click();
    void command5_Click();
    void Command13_Click();
    void Command12_Click();
    void command4_Click();
    void btexo_Click();
    void Command3_Click();
    void CommandIMPRIME_Click();
    void Command10_Click();
    void Command8_Click();
    void Command14_Click();
    void Image4_Click(int index);
    void projo_Click();
    void beReadBy(ReadingAloud& voice);
    void readAloud();
    bool stopReading();
    std::vector<page::SpokenPart> partsToRead() const;
    bool hasVideoMenu() const;
    void toggleVideoSize();
    void chooseVideo(const QString& caption);

    shell::SharedState& state_;
    const page::FontBook& fonts_;
    const platform::Screen& screen_;
    markup::DrawnPage shown_;
    std::optional<Parts> parts_;
    WindowSizeRule sizeRule_;
    QTimer sizeSettled_;

    QWidget* body_ = nullptr;
    Toolbar* toolbar_ = nullptr;
    Rail* rail_ = nullptr;
    look::PagePanel* panel_ = nullptr;
    VideoFrame* videoFrame_ = nullptr;
    VideoLayout videoLayout_ = VideoLayout::None;
    bool videoPlays_ = false;
    ChapterBar* Framebase_ = nullptr;
    Cover* cover_ = nullptr;
    look::PictureBox* PictureTEXTE_ = nullptr;
    look::PictureBox* PICTUREILLUS_ = nullptr;
    look::PictureBox* titre_ = nullptr;
    look::Notice* notice_ = nullptr; ///< in the place of a page that cannot be read
    std::unique_ptr<PageFinder> finder_;
    PageSelection* selection_ = nullptr;
    std::unique_ptr<PageReader> reader_;
    QString summaryCode_; ///< the tag of Command2

    bool startUpDone_ = false;
    bool working_ = false;
    bool busy_ = false;
    bool closeRequested_ = false;
    bool resizing_ = false;
    bool left_ = false;
    bool pageHadFocus_ = false;
};

} // namespace viewer
