// SPDX-License-Identifier: MIT
#include "Theme/Texts.h"

#include "Support/Text.h"

using namespace Qt::StringLiterals;

Texts::Texts(QObject *parent)
    : QObject(parent)
{
}

QJSValue Texts::of()
{
    if (m_of.isUndefined()) {
        QQmlEngine *engine = qmlEngine(this);
        Q_ASSERT(engine);
        m_of = engine->newQObject(this).property(u"lookup"_s);
    }
    return m_of;
}

QString Texts::lookup(const QString &english)
{
    return Text::lookup(english);
}

QString Texts::fill(const QString &english, const QString &value)
{
    return Text::filled(english, {value});
}
