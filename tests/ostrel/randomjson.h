#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QVector>
#include <cstring>

/** Random JSON documents with the names and values that are easy to get wrong. */
class RandomJson
{
    // Whole numbers beyond 2^53 lose digits in Qt's own text.
    static constexpr int minShift = 11;
    static constexpr double lossyFrom = 9e15, lossyTo = 1e19;

public:
    explicit RandomJson(quint32 seed)
        : m_random(seed)
    {
    }

    QJsonValue value(int depth)
    {
        const int kind = m_random.bounded(depth > 0 ? 8 : 6);
        switch (kind) {
        case 0:
            return QJsonValue::Null;
        case 1:
            return bool(m_random.bounded(2));
        case 2:
            return qint64(m_random.generate64()) >> m_random.bounded(minShift, 64);
        case 3:
            return number();
        case 4:
        case 5:
            return text();
        case 6:
            return list(depth - 1);
        default:
            return object(depth - 1);
        }
    }

    QJsonObject object(int depth)
    {
        QJsonObject members;
        for (int i = m_random.bounded(6); i > 0; --i)
            members.insert(text(), value(depth));
        return members;
    }

private:
    QJsonArray list(int depth)
    {
        QJsonArray elements;
        for (int i = m_random.bounded(6); i > 0; --i)
            elements.append(value(depth));
        return elements;
    }

    double number()
    {
        const quint64 bits = m_random.generate64();
        double result = 0;
        std::memcpy(&result, &bits, sizeof result);
        const bool lossy = qAbs(result) > lossyFrom && qAbs(result) < lossyTo;
        return qIsFinite(result) && !lossy ? result : 0.1;
    }

    QString text()
    {
        static const QVector<QString> pieces
            = {"",     "a",    ".", "#0", "#", "x.y", "[0][0][0]", "\"",  "\\",
               "\n\t", "\x01", "ü", "点", "𝄞", " ",   "/",         "name"};
        QString result;
        for (int i = m_random.bounded(3); i >= 0; --i)
            result += pieces[m_random.bounded(pieces.size())];
        return result;
    }

    QRandomGenerator m_random;
};
