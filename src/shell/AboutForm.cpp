#include "shell/AboutForm.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "controls/FitToScreen.h"
#include "platform/Toolkit.h"
#include "shell/Icons.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair Caption{"About Zelvor", "关于 Zelvor"};
constexpr std::string_view PictureName = "Zelvor";
constexpr TextPair About{"Zelvor RADIO PROGRAMMING SOFTWARE\n"
                         "FOR 4618/4613/4617/5618/5613/5617\n"
                         "\n"
                         "VERSION 1.00\n"
                         "RELEASE Jan/30/2007",
                         "Zelvor对讲机编程软件\n"
                         "用于4618/4613/4617/5618/5613/5617\n"
                         "\n"
                         "版本 1.00\n"
                         "发布2007/01/30"};

constexpr int PictureSize = 64;
constexpr int Margin = 20;

} // namespace

AboutForm::AboutForm(Language language, QWidget* parent) : QDialog(parent) {
    setObjectName("AboutForm");
    setWindowTitle(ToQString(Caption.In(language)));
    setWindowIcon(MakeIcon(IconShape::Application));

    auto* picture = new QLabel(this);
    picture->setPixmap(MakeIcon(IconShape::Application).pixmap(QSize(PictureSize, PictureSize), devicePixelRatioF()));
    picture->setAccessibleName(ToQString(PictureName));
    auto* lblAbout = new QLabel(ToQString(About.In(language)), this);
    lblAbout->setObjectName("LblAbout");
    auto* cmdClose = new QPushButton(ToQString(TableText(language, Text::CloseButton)), this);
    cmdClose->setObjectName("cmdClose");
    cmdClose->setDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setHorizontalSpacing(Margin);
    layout->setVerticalSpacing(Margin);
    layout->addWidget(picture, 0, 0, Qt::AlignTop);
    layout->addWidget(lblAbout, 0, 1);
    layout->addWidget(cmdClose, 1, 0, 1, 2, Qt::AlignRight);
    FitToScreen(*this);
}

} // namespace zelvor
