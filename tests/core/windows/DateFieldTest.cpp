#include "core/windows/DateField.h"

#include "core/clsCalendar.h"
#include "core/windows/frmCalendar.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"

#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

/// A window with a date field in a panel, and the calendar behind it.
class DateFieldTest : public testing::Test {
protected:
    TestWorld world_;
    QWidget form_;
    QWidget* panel_ = new QWidget(&form_);
    QLineEdit* field_ = new QLineEdit(panel_);
    clsCalendar calendar_{frmCalendar::over(&form_)};

    void SetUp() override {
        form_.setGeometry(30, 20, 500, 300);
        panel_->setGeometry(40, 50, 300, 200);
        field_->setGeometry(5, 7, 100, 25);
        form_.show();
    }
    QString pick(const QString& text, const std::function<void(QWidget&)>& user) {
        field_->setText(text);
        QString result;
        whileModal([&] { result = DateField::pick(calendar_, *field_); }, user);
        return result;
    }
};

} // namespace

TEST_F(DateFieldTest, pick_dateOfAnyForm_opensOnItAndGivesAShortDate) {
    for (const QString& text : {u"2/4/1965"_s, u"1965-02-04"_s, u"February 4, 1965"_s, u"04-Feb-1965"_s}) {
        const QString result = pick(text, [](QWidget& window) {
            EXPECT_EQ(window.objectName(), u"frmCalendar"_s);
            EXPECT_EQ(control<QLabel>(window, "lblYear").text(), u"1965"_s);
            click(window, "lblDay15"); // February 1965 begins on a Monday
            click(window, "cmdOK");
        });
        EXPECT_EQ(result, u"2/15/1965"_s);
        EXPECT_EQ(field_->text(), text);
    }
}

TEST_F(DateFieldTest, pick_noDate_opensOnTodayWhichCancelGives) {
    for (const QString& text : {QString(), u"soon"_s}) {
        EXPECT_EQ(pick(text, [](QWidget& window) { click(window, "cmdCancel"); }), u"2/14/2026"_s);
    }
}

TEST_F(DateFieldTest, pick_cancel_givesTheFieldsDateAsShortDate) {
    EXPECT_EQ(pick(u"1965-02-04"_s,
                   [](QWidget& window) {
                       click(window, "lblDay15");
                       press(window, Qt::Key_Escape);
                   }),
              u"2/4/1965"_s);
}

TEST_F(DateFieldTest, pick_calendarStandsBesideTheField) {
    // 700 twips are 46.67 logical pixels.
    QPoint stood;
    pick({}, [&](QWidget& window) { stood = window.pos(); });
    EXPECT_EQ(stood, form_.pos() + QPoint(40 + 5 + 47, 50 + 7));
}
