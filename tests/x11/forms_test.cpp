// Forms on a real display: their size when they are activated, and keys that the server repeats.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/qt/desktop_dialogs.h"
#include "platform/qt/desktop_screen.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

/// Milliseconds after which a case is hopeless; nothing is expected to take that long.
constexpr int Deadline = 20000;

/// Serves events until `condition` holds. False if it never does.
bool Until(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, Deadline);
}

/// Presses, holds and releases keys as a keyboard at the server would.
void Keyboard(const QStringList& what) {
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), what), 0);
}

/// A key that the server repeats as long as this lives.
class HeldKey : public QObject {
public:
    explicit HeldKey(QString key) : key_(std::move(key)) {
        qApp->installEventFilter(this);
        Keyboard({"keydown", key_});
    }
    ~HeldKey() override { Keyboard({"keyup", key_}); }

    /// Enough for the server's pairs of release and press to come apart now and then.
    bool AwaitManyRepeats() {
        repeats_ = 0;
        return Until([&] { return repeats_ >= 150; });
    }

private:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (object->isWindowType() && event->type() == QEvent::KeyPress) {
            repeats_ += static_cast<QKeyEvent*>(event)->isAutoRepeat();
        }
        return false;
    }

    QString key_;
    int repeats_ = 0;
};

class FormsOnX11 : public ScriptedProgram {
protected:
    FormsOnX11() : ScriptedProgram(&RealScreen()) {}

    void SetUp() override {
        ASSERT_NE(QGuiApplication::platformName(), "offscreen") << "see on_display.sh";
    }

    static bool OnX11() { return QGuiApplication::platformName() == "xcb"; }

    static Screen& RealScreen() {
        static DesktopScreen screen;
        return screen;
    }

    /// The window with its frame, if the window manager gave it one, takes the whole screen.
    bool FillsTheScreen(const std::string& name) {
        const QWindow& window = *WindowOf(Get(name)).windowHandle();
        if (!OnX11()) {
            // Nobody knows what panels leave, but the frame takes a little in any case.
            const int frame = window.screen()->size().width() - window.width();
            return window.isExposed() && frame > 0 && frame < 20;
        }
        return window.isExposed() && window.frameGeometry() == window.screen()->availableGeometry();
    }
    /// Waits until a form that was shown is activated and has the whole screen.
    void AwaitFront(const std::string& name) {
        ASSERT_TRUE(Until([&] {
            return Program.Find(name) && Times(name + " Activate") > 0 && FillsTheScreen(name) &&
                   WindowOf(Get(name)).isActiveWindow();
        })) << name;
    }
    /// Types a key that nobody else uses, and returns what was noted before it arrived.
    Log SeenUpToNow(const std::string& name) {
        const std::string mark = name + " KeyUp 112";
        Keyboard({"key", "F1"});
        EXPECT_TRUE(Until([&] { return Times(mark) > 0; }));
        return {Seen.begin(), std::find(Seen.begin(), Seen.end(), mark)};
    }
};

TEST_F(FormsOnX11, AreActivatedOnceAndAtTheirFinalSize) {
    using Size = std::pair<double, double>;
    std::map<std::string, Size> activated;
    for (const char* name : {"A", "B"}) {
        Scripts[name].Activate = [&, name](ScriptedForm& form) {
            activated[name] = {form.Width(), form.Height()};
        };
        // As the game's forms hand over to each other.
        Scripts[name].KeyUp = [&, name](ScriptedForm& form, int) {
            form.Forms().Show(*name == 'A' ? "B" : "A");
            form.Forms().Unload(form);
        };
    }
    Program.Show("A");
    for (const std::string name : {"A", "B", "A", "B"}) {
        SCOPED_TRACE(name);
        ASSERT_NO_FATAL_FAILURE(AwaitFront(name));
        EXPECT_EQ(activated[name], Size(Get(name).Width(), Get(name).Height()));
        EXPECT_EQ(Times(name + " Activate"), 1);
        const Log seen = SeenUpToNow(name);
        const auto activate = std::find(seen.begin(), seen.end(), name + " Activate");
        EXPECT_EQ(std::find(activate, seen.end(), name + " Resize"), seen.end());
        std::erase_if(Seen, [&](const auto& line) { return line.starts_with(name); });
    }
}

/// Notes in which sizes a form's window was to be seen.
class WidthsSeen : public QObject {
public:
    QSet<int> Widths;

    WidthsSeen() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (auto* const window = qobject_cast<QWindow*>(object);
            window && event->type() == QEvent::Expose && window->isExposed()) {
            Widths.insert(window->width());
        }
        return false;
    }
};

TEST_F(FormsOnX11, OfTheirOwnSizeComeUpInIt) {
    const PixelSize screen = RealScreen().Size();
    Scripts["A"].Style = FormStyle::Windowed;
    const auto put = [](ScriptedForm& form, double left, double width, double height) {
        const double twips = RealScreen().TwipsPerPixelX();
        form.Left(left * twips);
        form.Top(0);
        form.Width(width * twips);
        form.Height(height * twips);
    };
    Scripts["A"].Load = [&](ScriptedForm& form) { put(form, 100, 640, 480); };
    Scripts["A"].Activate = [&](ScriptedForm& form) { put(form, 0, screen.Width, screen.Height); };
    WidthsSeen seen;
    Program.Show("A");
    ASSERT_NO_FATAL_FAILURE(AwaitFront("A"));
    SeenUpToNow("A");
    EXPECT_EQ(seen.Widths, QSet<int>{WindowOf(Get("A")).width()}) << "no other size flashes up";
}

TEST_F(FormsOnX11, ModalOnesOfTheirOwnSizeGrowToTheScreenAndGoBack) {
    Scripts["B"].Style = FormStyle::Windowed;
    Scripts["B"].Load = [](ScriptedForm& form) {
        form.Left(3000);
        form.Top(1500);
    };
    Program.Show("A");
    ASSERT_NO_FATAL_FAILURE(AwaitFront("A"));
    QTimer::singleShot(0, [&] {
        const QWidget& window = WindowOf(Get("B"));
        EXPECT_TRUE(Until([&] { return Times("B Activate") > 0 && window.isActiveWindow(); }));
        const QRect before(window.pos(), window.size());
        for (int time = 0; time < 2; ++time) {
            Get("B").WindowState(Form::Maximised);
            EXPECT_TRUE(Until([&] { return FillsTheScreen("B"); }));
            Get("B").WindowState(Form::Normal);
            EXPECT_TRUE(Until([&] { return window.size() == before.size(); }));
            SeenUpToNow("B");
            EXPECT_EQ(window.size(), before.size());
            if (OnX11()) {
                // The frame of a maximised window is thinner, and the place goes by the frame.
                EXPECT_LT((window.pos() - before.topLeft()).manhattanLength(), 8) << time;
            }
            Seen.clear();
        }
        Program.Unload(Get("B"));
    });
    Program.Show("B", Modality::Modal);
    EXPECT_TRUE(Until([&] { return WindowOf(Get("A")).isActiveWindow(); }));
}

TEST_F(FormsOnX11, SeeAHeldKeyAsOneStroke) {
    Program.Show("A");
    ASSERT_NO_FATAL_FAILURE(AwaitFront("A"));
    const std::pair<const char*, Log> keys[] = {
        {"Right", {"A KeyUp 39"}},
        {"space", {"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}},
    };
    for (const auto& [key, expected] : keys) {
        Seen.clear();
        {
            HeldKey held(key);
            ASSERT_TRUE(held.AwaitManyRepeats());
            EXPECT_EQ(Seen, Log{});
        }
        EXPECT_EQ(SeenUpToNow("A"), expected);
        Get("A").First.SetFocus();
    }
}

TEST_F(FormsOnX11, GiveTheKeyboardToAMessageBoxAndGetItBack) {
    Program.Show("A");
    ASSERT_NO_FATAL_FAILURE(AwaitFront("A"));
    Get("A").Second.SetFocus();
    // The pointer must not help.
    Keyboard({"mousemove", "5", "760"});
    QElapsedTimer age;
    age.start();
    QTimer eye;
    bool typed = false;
    QObject::connect(&eye, &QTimer::timeout, [&] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box && box->isActiveWindow() && !typed) {
            typed = true;
            Keyboard({"key", "Return"});
        } else if (box && age.elapsed() > Deadline) {
            box->close();
            ADD_FAILURE() << (typed ? "the key did not reach the box" : "no keyboard for the box");
        }
    });
    eye.start(10);
    DesktopDialogs().Message("text", "title", Icon::Critical, Buttons::Ok);
    eye.stop();
    EXPECT_TRUE(Until([&] { return WindowOf(Get("A")).isActiveWindow(); }));
    EXPECT_TRUE(Until([&] { return WidgetOf(Get("A").Second).hasFocus(); }));
}

TEST_F(FormsOnX11, ThatAreDestroyedFromOutsideEndTheProgramAndBoxesAreClosed) {
    const auto destroy = [](const QWidget& window) {
        Keyboard({"windowclose", QString::number(window.winId())});
    };
    Scripts["A"].Unload = [](ScriptedForm& form) { form.Forms().Show("B"); };
    Program.Show("A");
    ASSERT_NO_FATAL_FAILURE(AwaitFront("A"));
    QTimer eye;
    QObject::connect(&eye, &QTimer::timeout, [&] {
        if (const QWidget* box = QApplication::activeModalWidget(); box && box->isActiveWindow()) {
            eye.stop();
            destroy(*box);
        }
    });
    eye.start(10);
    EXPECT_EQ(DesktopDialogs().Message("text", "title", Icon::Question, Buttons::YesNo),
              Answer::No);
    EXPECT_FALSE(Program.Ended());
    destroy(WindowOf(Get("A")));
    EXPECT_TRUE(Until([&] { return Program.Ended(); }));
    EXPECT_EQ(Times("A Unload"), 1) << "closed as by its frame";
}

}  // namespace
}  // namespace trameli
