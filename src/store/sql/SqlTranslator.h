// The statements that the system asks of its database, read by a tokenizer and a parser. What comes out names tables,
// columns and at most one value; the value never becomes part of a statement again, it is bound. Knows no database.
//
// The whole language:
//   SELECT [TOP n] * | name {, name}  FROM name [condition]
//   DELETE [*] FROM name [condition]
//   condition: WHERE name = number | WHERE name = 'text' | WHERE name LIKE 'text'
// Words are read without regard to case. A name is a word, or anything in square brackets; a word of the language can
// be a name too. A text in single quotes ends the statement, and it holds no single quote, doubled or not: a value with
// a quote in it is refused, whatever the quote would make of the statement. No semicolon, no comment, no second
// statement.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// One statement, taken apart.
struct SqlStatement
{
    enum class Verb { Select, Delete };
    enum class Comparison { Equal, Like };

    struct Condition
    {
        QString field;
        Comparison comparison = Comparison::Equal;
        /// The text between the quotes, or the number as it is written.
        QString value;
    };

    Verb verb = Verb::Select;
    /// The most rows that are wanted; -1 for all.
    qint64 top = -1;
    /// The columns in order; empty for all.
    QStringList fields;
    QString table;
    std::optional<Condition> condition;
};

/// Reads one statement. Error AdoError::BadSql for anything else.
[[nodiscard]] SqlStatement parseStatement(const QString &text);

/// A name as it stands in a statement for SQLite, in brackets. Error AdoError::BadSql for a name that holds a bracket.
[[nodiscard]] std::string bracketed(const QString &name);
