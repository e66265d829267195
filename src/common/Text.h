#pragma once
#include <QString>
#include <QStringList>
#include <QVariant>

// The small text and number routines that every window and document uses.

// The one reader of numbers typed as text: the leading number of the text (blanks ahead of
// it skipped, an optional sign, digits, the point as the only decimal separator); 0 when
// the text does not start with a number. "12abc" is 12, "2.5" is 2.5, "2,5" is 2, "abc" is 0.
double ValoareNumerica(const QString& text);

// ValoareNumerica rounded to the nearest whole number, the way a whole-number field takes it.
qint64 ValoareIntreaga(const QString& text);

// True when the text is a whole number made of digits only (after trimming), e.g. for keys.
bool EsteNumarIntreg(const QString& text);

// "7" -> "07", "12" -> "12", "100" -> "", "-5" -> "-5".
QString DouaCifre(int n);

// The amount with two decimals, the longer fractions kept as they are: 5 -> "5.00",
// 5.5 -> "5.50", 5.255 -> "5.255", -5.5 -> "-5.50".
QString TextSuma(double x);

// The text of a whole number. Those of 0 to 99 are made once and shared: the counts that a
// list writes on every row take no memory of their own.
QString TextIntreg(qint64 n);
// The shortest text of a double with the point as separator and all significant digits.
QString TextNumar(double x);
// A number column as a text box shows it: "" for NULL.
QString TextNumarBD(const QVariant& v);

QString CuMajuscula(const QString& s);
bool EsteCifra(const QString& c);
bool InInterval(const QString& s, double min, double max);
// Splits at the first blank; without a blank both outputs stay as they were.
void ImparteLaSpatiu(const QString& s, QString& first, QString& rest);
QString TextPanaLaParanteza(const QString& s);
QStringList LitereDinText(const QString& s);
