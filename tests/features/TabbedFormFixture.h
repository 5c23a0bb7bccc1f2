#pragma once

#include <QLayout>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>

#include "channels/GridFormFixture.h"

namespace zelvor {

/// A window whose fields lie on tabs, a grid on one of them.
template<typename Form>
class TabbedFormTest : public GridFormTest<Form> {
protected:
    QTabWidget& Tabs() { return this->template Find<QTabWidget>("SSTab1"); }
    void ClickTab(int index) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(index).center());
    }

    /// In either language no page is too low for what is on it, all fields begin below each other, and so do all labels
    /// on a page and all in a frame.
    void ExpectOneRasterOnEveryPage() {
        for (const Language language : {Language::English, Language::Chinese}) {
            this->Show(language);
            for (int tab = 0; tab < Tabs().count(); ++tab) {
                ClickTab(tab);
                const QWidget& page = *Tabs().widget(tab);
                const int needed = page.layout() == nullptr ? 0 : page.layout()->minimumSize().height();
                EXPECT_LE(needed, page.height()) << tab;
                ExpectOnRaster(page);
            }
        }
    }

private:
    void ExpectOnRaster(const QWidget& page) {
        for (const QLabel* label : page.findChildren<QLabel*>(QRegularExpression("^lbl"))) {
            const QWidget& field = *label->buddy();
            EXPECT_EQ(field.mapTo(this->form.get(), QPoint()).x(), 216) << label->objectName().toStdString();
            const int indent = label->parentWidget() == &page ? 8 : 13; // in a frame
            EXPECT_NEAR(label->mapTo(&page, QPoint()).x(), indent, 2) << label->objectName().toStdString();
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << label->objectName().toStdString();
        }
    }
};

} // namespace zelvor
