// The life of a form: loading, size, activation, unloading.
#include <gtest/gtest.h>

#include "platform/command_button.h"
#include "platform/forms.h"
#include "support/hand_clock.h"
#include "support/stage.h"

namespace trameli {
namespace {

using Log = std::vector<std::string>;

/// Notes what happens to it.
class NotingForm : public Form {
public:
    NotingForm(trameli::Forms& forms, Log& log)
        : Form(forms, "NotingForm", {6000, 3000}),
          Button(*this, "Button", {100, 100, 1500, 600}, "Press"),
          log_(log) {
        Button.Click = [this] { log_.push_back("click"); };
    }

    CommandButton Button;
    std::function<void()> WhenActivated;

protected:
    void Form_Load() override { log_.push_back("load"); }
    void Form_Resize() override { log_.push_back("resize"); }
    void Form_Activate() override {
        log_.push_back("activate " + std::to_string(static_cast<int>(Width())));
        if (WhenActivated) {
            WhenActivated();
        }
    }
    void Form_Unload() override { log_.push_back("unload"); }
    void Form_KeyUp(int keyCode, int) override { log_.push_back("key " + std::to_string(keyCode)); }

private:
    Log& log_;
};

class FormTest : public testing::Test {
protected:
    FormTest() {
        Program.Register("NotingForm", [this](Forms& forms) {
            return std::make_unique<NotingForm>(forms, Seen);
        });
    }

    HandClock Time;
    FixedScreen Display{1024, 768};
    Forms Program{Time, Display};
    Log Seen;
};

TEST_F(FormTest, IsActivatedOnceAndAtItsFinalSize) {
    Program.Show("NotingForm");
    Pump();
    EXPECT_EQ(Seen.front(), "load");
    EXPECT_EQ(Seen.back(), "activate " + std::to_string(1024 * 15));
    EXPECT_EQ(std::count_if(Seen.begin(), Seen.end(),
                            [](const auto& s) { return s.starts_with("activate"); }),
              1);
}

TEST_F(FormTest, ButtonIsPressedByTheReleaseOfSpaceAfterTheFormHasSeenIt) {
    Program.Show("NotingForm");
    Pump();
    Form& form = *Program.Find("NotingForm");
    Seen.clear();
    Press(form, Qt::Key_Space);
    EXPECT_EQ(Seen, Log{});
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"key 32", "click"}));
}

}  // namespace
}  // namespace trameli
