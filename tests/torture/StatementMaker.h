// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <random>

/// A maker of random statements on the table tb_destinatari that mean the same to the program's databases and
/// to plain SQLite. Texts have small letters and digits only where they are stored, so that both sort them
/// alike; what is compared with them may be in capitals.
class StatementMaker {
  public:
    explicit StatementMaker(unsigned seed) : m_random(seed) {}

    struct Statement {
        QString text;
        bool reads = false;
        bool ordered = false;  ///< the order of its rows is fully determined
    };
    /// `rows` are in the table now: it is kept between some and a few hundred.
    Statement next(qint64 rows);

  private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    QString text(int most = 6);
    QString textLiteral();
    QString number();
    QString condition(int depth = 0);
    QString comparison();
    QString where();
    Statement select();
    Statement insert();
    Statement update();

    std::mt19937 m_random;
};
