#pragma once

#include "exercises/calculator_beside.h"
#include "exercises/database_records.h"
#include "exercises/question_edit.h"
#include "exercises/test_session.h"
#include "exercises/test_state.h"
#include "exercises/test_view.h"
#include "look/screen_filling.h"
#include "markup/draw_page.h"
#include "page/faces/font_book.h"
#include "page/spoken_page.h"
#include "platform/message_box.h"
#include "platform/screen.h"
#include "shell/shared_state.h"

#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QPlainTextEdit;

namespace look {
class Button;
class Notice;
class OutcomeLine;
class PagePanel;
class PictureBox;
} // namespace look

namespace viewer {
class PageReader;
class ReadingAloud;
} // namespace viewer

namespace exercises {

class AnswerPanel;
class Cjuste;
class Marker;
class Strip;
class Summary;
class VerdictLine;

/// `exo`: the window of the test, modal to the main window only, so that a calculator stays usable
/// beside it. It shows what its session tells it to and hands on what its controls are asked for;
/// the controls have the names of the handlers.
class Exo : public QWidget,
            public look::ScreenFilling,
            public TestView,
            public markup::DrawingWatcher {
public:
    /// What the window works with; all of it outlives the window.
    struct Parts {
        shell::SharedState& shared;
        TestState& test;
        markup::DrawingState& drawing;
        markup::PictureSource& pictures;
        const page::FontBook& fonts;
        const platform::Screen& screen;
        platform::MessageBoxes& messageBoxes;
        CourseWindow& course;
        CalculatorBeside& calculator;
        viewer::ReadingAloud& voice;
        bool author = false; ///< shows the authoring switch
    };

    Exo(const Parts& parts, QWidget& mainWindow);
    ~Exo() override;

    /// Opens the test of `PendingExerciseChapter` and appears.
    void start();
    /// The same; returns once the window is closed.
    void run();

    /// Reads the tables anew and shows the question as they have it now; what was ticked or typed
    /// stays. False, and nothing done, while a box is open over the question or its text is shown
    /// to the author.
    bool reload();

    /// Milliseconds between two pictures of the popup after a right answer.
    void setBlinkInterval(int milliseconds) { blinkInterval_ = milliseconds; }

    // look::ScreenFilling
    void setFillsScreen(bool fills) override;

    // TestView
    void setTitle(const std::u16string& title) override;
    void setCaption(const std::u16string& caption) override;
    void setVerdict(const std::optional<Verdict>& verdict) override;
    void setPreviousVisible(bool visible) override;
    void setNextVisible(bool visible) override;
    void setValidateVisible(bool visible) override;
    void setScoreVisible(bool visible) override;
    void placeMarker(int question, int count) override;
    void setMarkerVisible(bool visible) override;
    void setFace(int face) override;
    void offerSummary(bool offered) override;
    void showSummary() override;
    void repaintStrip() override;
    void focusStrip() override;
    void misanet() override;
    void drawQuestion(const std::u16string& source) override;
    void showRightAnswer() override;
    void tell(const Message& message) override;
    bool ask(const Message& question) override;

    // markup::DrawingWatcher
    void setBusy(bool busy) override;
    void refresh(page::SurfaceId surface) override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Construction.
    void addLabels();
    void addQuestionArea();
    void addButtons();
    void addStrip();
    void addReading();
    void addAuthoringSwitch();
    void connectHandlers();
    void putInTabOrder();

    void Form_Load();
    void tellUnreadable(QStringList reasons);
    bool hasQuestions() const;
    void place();
    void makeWritable();

    void Command3_MouseUp();
    void command4_MouseUp();
    void command5_Click();
    void command6_Click();
    void Picture1_MouseUp(double y);
    void Image2_Click();
    void Command7_Click();
    void Command1_Click();
    void Labelien_Click(const QString& tag);
    void connectSummary();
    void hideSummary();

    /// Runs what may lead to another question, unless the author's text cannot be written.
    void leaveQuestion(const std::function<void()>& go);
    std::optional<QString> typedSource() const;
    void showSource();

    void readAloud();
    bool stopReading();
    std::vector<page::SpokenPart> partsToRead() const;

    void setButtonVisible(look::Button& button, bool visible);
    bool keepTyped();
    bool mayClose();
    void fitQuestion();
    void focusQuestion();
    QString questionName() const;
    void nameQuestion();

    Parts parts_;
    QWidget& mainWindow_;
    markup::DrawnPage question_; ///< as shown
    DatabaseRecords records_;
    std::unique_ptr<AnswerPanel> answers_;
    std::optional<TestSession> session_;
    std::optional<QuestionEdit> edit_;
    QEventLoop loop_;
    QPointer<Cjuste> popup_;
    int blinkInterval_;

    QWidget* body_ = nullptr;
    QLabel* Label2_ = nullptr;
    QLabel* noa_ = nullptr;
    VerdictLine* verdict_ = nullptr;
    Summary* summary_ = nullptr;
    look::Notice* notice_ = nullptr;       ///< over the question, when there are no questions
    look::OutcomeLine* reading_ = nullptr; ///< that the question is being read aloud
    std::unique_ptr<viewer::PageReader> reader_;
    QString caption_; ///< of the question, while the summary has another
    look::PagePanel* frame1_ = nullptr;
    look::PictureBox* Picture2_ = nullptr;
    Strip* Picture1_ = nullptr;
    Marker* Image4_ = nullptr;
    look::Button* Command3_ = nullptr;
    look::Button* command4_ = nullptr;
    look::Button* command5_ = nullptr;
    look::Button* bilan_ = nullptr; ///< leads to the summary, where `command5` has done its work
    look::Button* command6_ = nullptr;
    look::Button* Command7_ = nullptr;
    look::Button* Image2_ = nullptr;
    look::Button* Command1_ = nullptr; ///< authors only
    QPlainTextEdit* source_ = nullptr; ///< `code` as authors see it

    bool markerPlaced_ = false;
    bool questionHadFocus_ = false;
    bool asking_ = false;   ///< the question before closing is on the screen
    bool writable_ = false; ///< the tables are opened for an author
    bool leaving_ = false;  ///< it may close without a question
};

} // namespace exercises
