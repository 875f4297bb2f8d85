#pragma once

#include <QFont>
#include <QList>
#include <QString>

/// A text whose columns stand under each other: `Text` has one tab between two columns, `Stops` tells where, in pixels,
/// each column but the first begins.
struct TextColumns
{
    QString Text;
    QList<qreal> Stops;
};

/// Texts part their columns by as many tabs as suited the letters that they were written for, in one language. However
/// many they are, they count as one, and the stops are measured: every column is as wide as its widest entry. An entry
/// wider than `widest` pixels is a sentence and moves nothing.
TextColumns MeasuredColumns(const QString& text, const QFont& font, qreal widest);
