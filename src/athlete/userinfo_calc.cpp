// Athlete Information: the figures that follow the athlete's typing, heart-rate zones and the
// pulse timer.
#include "athlete/energymodel.h"
#include "athlete/frmCondition.h"
#include "athlete/frmUserInfo.h"
#include "athlete/percentpie.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QScopedValueRollback>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using energy::NumText;

namespace {
const QString kMessage = QStringLiteral("Message");
QVariant NumOrNull(const QString& text)
{
    return text.trimmed().isEmpty() ? QVariant() : QVariant(Val(text));
}
}

// ---------------------------------------------------------------------------- energy model

void frmUserInfo::calcBMR()
{
    const auto bmr = energy::CalcBMR(Val(txtWeight2->text()), Val(txtAge->text()), Male(), MetricUnits(),
                                     cboFitness->currentText());
    if (bmr) txtBMR->setText(NumText(*bmr));
}

void frmUserInfo::on_cmdCalc_clicked() { calcBMR(); }

void frmUserInfo::on_cmdBMI_clicked()
{
    const auto bmi = energy::CalcBMI(Val(txtWeight2->text()), Val(txtHeight->text()), MetricUnits());
    if (bmi) txtBMI->setText(NumText(*bmi));
}

void frmUserInfo::on_cmdLBM_clicked()
{
    const auto ideal = energy::CalcIdealWeight(Val(txtWeight2->text()), Val(txtHeight->text()), Male(), MetricUnits(),
                                               cboFrame->currentIndex());
    if (ideal) txtIdealWeight->setText(NumText(*ideal));
}

void frmUserInfo::on_cmdBodyfat_clicked()
{
    if (Val(txtIdealWeight->text()) < 1) {
        MsgBox(QStringLiteral("Please enter a lean body mass."), vbInformation, kMessage);
        return;
    }
    const auto fat = energy::CalcBodyFat(Val(txtWeight2->text()), Val(txtIdealWeight->text()));
    if (fat) txtBodyfat->setText(NumText(*fat));
}

void frmUserInfo::CalcLoss()
{
    if (Val(txtTargetWeight->text()) < 10) return;
    const double perWeek = Val(cboWeightLoss->currentText());
    const bool metric = MetricUnits();
    if (Val(txtDietLoss->text()) >= 1)
        lblCals->setText(NumText(energy::DailyCalories(Val(txtDietLoss->text()), perWeek, metric)));
    if (Val(txtExerciseLoss->text()) >= 1)
        lblExercise->setText(NumText(energy::DailyCalories(Val(txtExerciseLoss->text()), perWeek, metric)));
    const double weekly = energy::WeeklyFigure(Val(lblCals->text()), Val(lblExercise->text()));
    lblWeekly->setText(NumText(weekly));
    for (QLabel* l : {lblEat, lblCals, lblDietSide, lblExercise, lblExerciseSide, lblChangeOf, lblWeekly})
        if (l) l->setVisible(weekly > 0);

    const auto t = energy::MaintainSentence(txtBMR->text(), lblLoss->text(), cboWeightLoss->currentText(),
                                            lblkg[0]->text());
    lblmaintain->setText(t.maintain);
    if (!t.dietSide.isEmpty()) lblDietSide->setText(t.dietSide);
    if (!t.changeOf.isEmpty()) lblChangeOf->setText(t.changeOf);
}

void frmUserInfo::WeightChanged()
{
    if (Loading) return;
    txtweight->setText(txtWeight2->text());
    calcBMR();
    TargetWeightChanged();
}

void frmUserInfo::TargetWeightChanged()
{
    if (Loading) return;
    const double current = Val(txtweight->text()), target = Val(txtTargetWeight->text());
    // No difference is shown before a target is set, as at loading.
    lblDifference->setText(txtTargetWeight->text().trimmed().isEmpty()
                               ? QString()
                               : NumText(energy::WeightDifference(current, target)));
    lblLoss->setText(current - target < 0 ? QStringLiteral("Weight gain per week") : QStringLiteral("Weight loss per week"));
    if (!energy::WeeklyAmountAllowed(current, target)) {
        cboWeightLoss->setCurrentIndex(-1);
        cboWeightLoss->setEnabled(false);
    } else {
        cboWeightLoss->setEnabled(true);
    }
    CalcLoss();
}

void frmUserInfo::AgeChanged()
{
    if (Loading) return;
    txtMHR->setText(NumText(energy::QuickMaxHeartRate(Val(txtAge->text()))));
}

void frmUserInfo::DietLossChanged()
{
    if (Loading || m_inShare) return;
    {
        const QScopedValueRollback<bool> share(m_inShare, true);
        txtExerciseLoss->setText(NumText(energy::OtherShare(Val(txtDietLoss->text()))));
    }
    CalcLoss();
}

void frmUserInfo::ExerciseLossChanged()
{
    if (Loading || m_inShare) return;
    {
        const QScopedValueRollback<bool> share(m_inShare, true);
        txtDietLoss->setText(NumText(energy::OtherShare(Val(txtExerciseLoss->text()))));
    }
    CalcLoss();
}

void frmUserInfo::DietChanged()
{
    if (Loading) return;
    const auto shares = energy::DietShares(cboDiet->currentIndex());
    if (!shares) return;
    txtCarbs->setText(QString::number(shares->carbs));
    txtProtein->setText(QString::number(shares->protein));
    txtFat->setText(QString::number(shares->fat));
    SetGraph();
}

void frmUserInfo::SetGraph()
{
    Graph1->SetValues(Val(txtCarbs->text()), Val(txtProtein->text()), Val(txtFat->text()));
}

void frmUserInfo::on_cmdCondition_clicked()
{
    frmCondition dlg(this);
    dlg.SetTarget(cboFitness);
    ShowModal(&dlg);
}

// ---------------------------------------------------------------------------- heart rate

void frmUserInfo::on_cmdCalculate_clicked()
{
    Guard([this] {
        UserRS.Close();
        SqlText = "select * from User_Info where User_ID=" + CurrentUserID;
        UserRS.Open(SqlText);
        if (UserRS.Eof()) {
            UserRS.Close();
            MsgBox(QStringLiteral("There was a problem locating the user info."), vbInformation, kMessage);
            return;
        }
        QVariant v = UserRS.Field("age");
        QString age = IsNull(v) ? QString() : Str(v);
        if (age.trimmed().isEmpty()) age = txtAge->text();
        QVariant sexField = UserRS.Field("sex");
        UserRS.Close();
        if (age.trimmed().isEmpty()) {
            MsgBox(QStringLiteral("In order to set up Heart Rate Zones, your age must be supplied."), vbExclamation,
                   kMessage);
            return;
        }
        if (txtRHR->text().trimmed().isEmpty()) {
            MsgBox(QStringLiteral("In order to set up Heart Rate Zones, your resting heart rate must be supplied."),
                   vbExclamation, kMessage);
            return;
        }
        const QString sex = IsNull(sexField) ? (optsex[0]->isChecked() ? QStringLiteral("M") : QStringLiteral("F"))
                                             : Str(sexField);
        if (Val(txtMHR->text()) == 0)
            txtMHR->setText(NumText(energy::MaxHeartRate(sex == QLatin1String("M"), Val(age))));

        const auto range = energy::RangeForCondition(cboFitness->currentIndex());
        if (!range) {
            MsgBox(QStringLiteral("Please select your condition from the Personal tab"), vbInformation, kMessage);
            return;
        }
        lblTraining[0]->setText(range->lowerCaption);
        lblTraining[1]->setText(range->upperCaption);

        const double mhr = Val(txtMHR->text()), rhr = Val(txtRHR->text());
        const QList<double> boxes = energy::ZoneBoxes(mhr, rhr);
        for (int i = 0; i < 10; ++i) txtZ1[i]->setText(NumText(boxes[i]));
        txtTrainingHR[0]->setText(NumText(energy::TrainingRate(mhr, rhr, range->lower)));
        txtTrainingHR[1]->setText(NumText(energy::TrainingRate(mhr, rhr, range->upper)));
    });
}

void frmUserInfo::ZoneChanged(int index)
{
    if (Loading) return;
    ChangeZones(index);
}

void frmUserInfo::ChangeZones(int index)
{
    if (index < 0 || index >= txtZ1.size()) return;
    const auto percent = energy::ReservePercent(Val(txtZ1[index]->text()), Val(txtMHR->text()), Val(txtRHR->text()));
    if (!percent) return;
    const QString p = NumText(*percent);
    QLabel* caption = lblZone[index / 2];
    caption->setText(energy::ChangeZoneCaption(caption->text(), index, p));
    txtZ1[index]->setToolTip(energy::ZoneTooltip(p + "%"));
}

void frmUserInfo::TrainingChanged(int index)
{
    if (Loading) return;
    const auto percent =
        energy::ReservePercent(Val(txtTrainingHR[index]->text()), Val(txtMHR->text()), Val(txtRHR->text()));
    if (!percent) return;
    lblTraining[index]->setText(energy::TrainingCaption(index == 0, NumText(*percent)));
}

void frmUserInfo::FillZones()
{
    UserRS.Close();
    SqlText = "select * from hrm_info where User_ID = '" + CurrentUserID + "'";
    UserRS.Open(SqlText);
    QList<double> boxes = energy::DefaultZoneBoxes();
    QList<QVariant> stored;
    if (!UserRS.Eof()) {
        const QVariant model = UserRS.Field("hr_model");
        if (!IsNull(model)) SelectListItem(cboHRM, Str(model));
        auto put = [](QLineEdit* e, const QVariant& v) { e->setText(IsNull(v) ? QString() : Str(v)); };
        put(txtRHR, UserRS.Field("RESTING_HR"));
        put(txtMHR, UserRS.Field("MAXIMUM_HR"));
        put(txtTrainingHR[0], UserRS.Field("traininglower"));
        put(txtTrainingHR[1], UserRS.Field("trainingupper"));
        // The zone boxes follow the training rates, by position.
        const int first = UserRS.HasField("Z1Lower") ? -1 : 5;
        for (int i = 0; i < 10; ++i) {
            const QVariant v = first < 0 ? UserRS.Field(QStringLiteral("Z%1%2").arg(i / 2 + 1).arg(i % 2 ? "Upper" : "Lower"))
                                         : UserRS.Field(first + i);
            stored << v;
        }
    }
    UserRS.Close();
    for (int i = 0; i < 10; ++i) {
        if (stored.isEmpty()) txtZ1[i]->setText(NumText(boxes[i]));
        else txtZ1[i]->setText(IsNull(stored[i]) ? QString() : Str(stored[i]));
    }
    for (int i = 0; i < 10; ++i) ChangeZones(i);
    for (int i = 0; i < 2; ++i) {
        const auto percent =
            energy::ReservePercent(Val(txtTrainingHR[i]->text()), Val(txtMHR->text()), Val(txtRHR->text()));
        if (percent && !txtTrainingHR[i]->text().isEmpty())
            lblTraining[i]->setText(energy::TrainingCaption(i == 0, NumText(*percent)));
    }
}

void frmUserInfo::WriteHrmInfo()
{
    UserRS.Close();
    SqlText = "select * from hrm_info where User_ID ='" + CurrentUserID + "'";
    UserRS.Open(SqlText);
    if (UserRS.Eof()) {
        UserRS.Close();
        UserRS.Open(QStringLiteral("hrm_info"));
        UserRS.AddNew();
        UserRS.SetField("User_ID", CurrentUserID);
    }
    UserRS.SetField("hr_model", cboHRM->currentIndex() < 0 ? QStringLiteral("Other") : cboHRM->currentText());
    UserRS.SetField("traininglower", NumOrNull(txtTrainingHR[0]->text()));
    UserRS.SetField("trainingupper", NumOrNull(txtTrainingHR[1]->text()));
    UserRS.SetField("RESTING_HR", NumOrNull(txtRHR->text()));
    UserRS.SetField("MAXIMUM_HR", NumOrNull(txtMHR->text()));
    const bool named = UserRS.HasField("Z1Lower");
    for (int i = 0; i < 10; ++i) {
        if (named) UserRS.SetField(QStringLiteral("Z%1%2").arg(i / 2 + 1).arg(i % 2 ? "Upper" : "Lower"), NumOrNull(txtZ1[i]->text()));
        else UserRS.SetField(5 + i, NumOrNull(txtZ1[i]->text()));
    }
    UserRS.Update();
    UserRS.Close();
}

// ---------------------------------------------------------------------------- pulse timer

void frmUserInfo::TimerChoiceChanged()
{
    static const int seconds[] = {15, 30, 60};
    const int i = cboSetTimer->currentIndex();
    if (i >= 0 && i < 3) lblCountDown->setText(QString::number(seconds[i]));
}

void frmUserInfo::on_cmdGo_clicked()
{
    if (tmrHR->isActive()) {
        tmrHR->stop();
        cmdGo->setText(QStringLiteral("Star&t"));
        return;
    }
    if (Val(lblCountDown->text()) <= 0) TimerChoiceChanged();
    tmrHR->start();
    cmdGo->setText(QStringLiteral("S&top"));
}

void frmUserInfo::on_tmrHR_timeout()
{
    lblCountDown->setText(QString::number(int(Val(lblCountDown->text())) - 1));
    if (lblCountDown->text() == QLatin1String("0")) {
        tmrHR->stop();
        TimerChoiceChanged();
        cmdGo->setText(QStringLiteral("Star&t"));
        QApplication::beep();
    }
}
