#include "compass/windows/TabularLabel.h"

#include <gtest/gtest.h>

namespace {

QString facts(const char* X, const char* Y, const char* angle) {
    return QStringLiteral("X = %1, Y = %2, Angle = %3")
        .arg(QLatin1String(X), QLatin1String(Y), QLatin1String(angle));
}

} // namespace

TEST(TabularLabel, facts_keepTheirColumnsWhateverTheNumbersAre) {
    TabularLabel label;
    const auto placeOf = [&](const QString& text, const QString& part) {
        label.setText(text);
        return label.positionOf(text.indexOf(part));
    };
    const QString few = facts("1", "2", "3");
    const QString many = facts("-123.456789012345", "111.111111111111", "359.999999999999");
    EXPECT_EQ(placeOf(few, QStringLiteral("Y =")), placeOf(many, QStringLiteral("Y =")));
    EXPECT_EQ(placeOf(few, QStringLiteral("Angle")), placeOf(many, QStringLiteral("Angle")));
    EXPECT_GT(placeOf(few, QStringLiteral("Angle")), placeOf(few, QStringLiteral("Y =")));
}

TEST(TabularLabel, digits_areOfOneWidth) {
    TabularLabel label;
    label.setText(QStringLiteral("1111"));
    const int narrow = label.positionOf(4);
    label.setText(QStringLiteral("8888"));
    EXPECT_EQ(label.positionOf(4), narrow);
    EXPECT_GT(narrow, 0);
}

TEST(TabularLabel, decimalComma_startsNoColumn) {
    TabularLabel label;
    label.setText(facts("1,5", "2,5", "3,5"));
    const int column = label.positionOf(label.text().indexOf(u'Y'));
    label.setText(facts("1.5", "2.5", "3.5"));
    EXPECT_EQ(label.positionOf(label.text().indexOf(u'Y')), column);
}

TEST(TabularLabel, size_doesNotDependOnTheText) {
    TabularLabel label;
    const QSize empty = label.sizeHint();
    label.setText(facts("1", "2", "3"));
    EXPECT_EQ(label.sizeHint(), empty);
    EXPECT_GE(empty.width(), label.positionOf(label.text().size()));
}
