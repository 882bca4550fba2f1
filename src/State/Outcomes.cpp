// SPDX-License-Identifier: MIT
#include "State/Outcomes.h"

#include "Support/Text.h"
#include "Theme/Format.h"

using namespace Qt::StringLiterals;

Outcomes::Notice Outcomes::outcomeOf(const Facts &facts, const Wording &wording)
{
    Notice notice;
    if (facts.removedCount == 0) {
        if (facts.firstError) {
            notice.alert = AlertData{.id = QUuid::createUuid(),
                                     .title = Text::lookup(wording.alertTitle),
                                     .message = words(*facts.firstError)};
        }
        return notice;
    }
    const QString freed = Format::bytes(facts.bytes);
    if (facts.failedCount > 0) {
        notice.alert = AlertData{
            .id = QUuid::createUuid(),
            .title = facts.partialTitle.value_or(Text::lookup(wording.alertTitle)),
            .message = Text::filled(u"%@ freed, but %lld protected items were skipped (such as diagnostic reports or "
                                    u"sandbox data). You can remove them manually in Finder.",
                                    {freed, facts.failedCount})};
        return notice;
    }
    notice.toast =
        ToastData{.symbol = u"checkmark.circle.fill"_s,
                  .tintHex = Tint::success,
                  .message = facts.count == Count::said ? Text::filled(wording.toast, {facts.removedCount, freed})
                                                        : Text::filled(wording.toast, {freed})};
    return notice;
}

QString Outcomes::words(const std::error_code &error)
{
    return QString::fromLocal8Bit(error.message());
}
