#include "strength/frmStrengthInfo.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"

QString ExercisePicturePath(const QString& image)
{
    return ProgramFolder() + QStringLiteral("/Images/") + image;
}

bool ShowExercisePicture(QLabel* browser, const QString& image)
{
    browser->clear();
    browser->setProperty("address", QString());
    if (image.trimmed().isEmpty())
        return false;
    const QString path = ExercisePicturePath(image.trimmed());
    if (!FileExists(path) || QFileInfo(path).isDir())
        return false;
    browser->setProperty("address", QUrl::fromLocalFile(path).toString());
    QPixmap picture(path);
    if (picture.isNull()) {
        browser->setText(QStringLiteral("The picture %1 cannot be shown.").arg(image.trimmed()));
        return true;
    }
    // Fitted to the least room the browser is given, so that no window size cuts it.
    const QSize room = browser->minimumSize().isEmpty() ? QSize(240, 200) : browser->minimumSize() - QSize(4, 4);
    if (picture.width() > room.width() || picture.height() > room.height())
        picture = picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    browser->setPixmap(picture);
    return true;
}

frmStrengthInfo::frmStrengthInfo(const QString& exercise, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmStrengthInfo"));
    setWindowTitle(QStringLiteral("Exercise Information for ") + exercise);

    lblDescription = form::Label(QStringLiteral("lblDescription"));
    lblInstruction = form::Label(QStringLiteral("lblInstruction"));
    for (QLabel* l : {lblDescription, lblInstruction}) {
        l->setWordWrap(true);
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        l->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        l->setFocusPolicy(Qt::StrongFocus);
        l->setMinimumWidth(280);
    }
    WebBrowser1 = form::Label(QStringLiteral("WebBrowser1"));
    WebBrowser1->setAccessibleName(QStringLiteral("Picture"));
    WebBrowser1->setAlignment(Qt::AlignCenter);
    WebBrowser1->setMinimumSize(260, 220);
    WebBrowser1->setFrameShape(QFrame::StyledPanel);
    WebBrowser1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* text = new QGridLayout;
    QLabel* d = form::AddRow(text, 0, QStringLiteral("&Description:"), lblDescription);
    QLabel* i = form::AddRow(text, 1, QStringLiteral("&Instruction:"), lblInstruction);
    for (QLabel* l : {d, i})
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setColumnStretch(1, 1);
    text->setRowStretch(2, 1);

    auto* close = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(close);

    auto* top = new QHBoxLayout;
    top->addLayout(text, 1);
    top->addWidget(WebBrowser1, 1);
    auto* main = new QVBoxLayout(this);
    main->addLayout(top, 1);
    main->addLayout(buttons);
    resize(720, 420);

    Guard([&] {
        QString image;
        SqlText = QStringLiteral("select * from strength_exercises where Exercise='") + SqlQuote(exercise) + "'";
        FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
            const QVariant desc = rs.Field(QStringLiteral("Description"));
            const QVariant instruction = rs.Field(QStringLiteral("Instruction"));
            if (!IsNull(desc))
                lblDescription->setText(Str(desc));
            if (!IsNull(instruction))
                lblInstruction->setText(Str(instruction));
            image = Str(rs.Field(QStringLiteral("Image")));
        });
        ShowExercisePicture(WebBrowser1, image);
    });
    CenterForm(this);
}
