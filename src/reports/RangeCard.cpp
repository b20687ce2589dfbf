#include "reports/RangeCard.h"

#include "platform/DatePicker.h"
#include "platform/Form.h"
#include "platform/Theme.h"
#include "setup/LiveSettings.h"
#include "store/Conversions.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double pickerWidth = 9;
constexpr int buttonGap = 8;

} // namespace

RangeCard::RangeCard(ReportFrame& reportFrame, const LiveSettings& liveSettings, Operator& person,
                     const QString& eternityTip)
    : Card(u"Date Range"_s), frame(reportFrame), settings(liveSettings), user(person) {
    const QString captions[] = {u"From"_s, u"To"_s};
    auto* form = new Form;
    for (int i = 0; i < 2; ++i) {
        auto* picker = Named(new DatePicker, Indexed(u"DTPicker1"_s, i));
        picker->setFixedWidth(Em(pickerWidth));
        form->AddRow(captions[i], picker);
        connect(picker, &DatePicker::Changed, this,
                [this, i](QDate date) { DTPicker1_Change(RangeBound(i), date); });
        connect(picker, &DatePicker::Refused, this, [this] {
            if (settings.AlarmOn)
                user.Beep();
        });
        DTPicker1[size_t(i)] = picker;
    }
    Rows()->addLayout(form);
    Rows()->addWidget(MakePresets(eternityTip));
}

QWidget* RangeCard::MakePresets(const QString& eternityTip) {
    const std::pair<QString, QString> presets[] = {
        {u"&L M"_s, u"Generates a Report for last Month"_s},
        {u"M&TD"_s, u"Generates a Report for this Month"_s},
        {u"&YTD"_s, u"Generates a Report for Current Year"_s},
        {u"&Eternity"_s, eternityTip}};
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(buttonGap);
    int index = 0;
    for (const auto& [caption, tip] : presets) {
        auto* button = Named(new QPushButton(caption), Indexed(u"cmdIncome"_s, index));
        button->setAutoDefault(true);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this,
                [this, index] { cmdIncome_Click(RangePreset(index)); });
        row->addWidget(button);
        ++index;
    }
    row->addStretch(1);
    return line;
}

void RangeCard::ShowRange() {
    for (size_t i = 0; i < DTPicker1.size(); ++i)
        DTPicker1[i]->SetDate(frame.DTPicker1[i]);
}

void RangeCard::FinishEntry() {
    for (DatePicker* picker : DTPicker1)
        picker->TakeTyped();
}

QString RangeCard::RangeText() const {
    return ShortDateText(frame.DTPicker1[0]) + u" - "_s + ShortDateText(frame.DTPicker1[1]);
}

void RangeCard::DTPicker1_Change(RangeBound bound, QDate date) {
    frame.PickDate(bound, date);
    ShowRange();
}

void RangeCard::cmdIncome_Click(RangePreset preset) {
    frame.ApplyPreset(preset);
    ShowRange();
    Q_EMIT Loaded();
}
