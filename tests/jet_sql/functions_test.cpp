#include "cases.h"

namespace jet::sql::test {
namespace {

TEST(Functions, GiveWhatTheirNamesSay) {
  expectValues({
      {"Left('perché', 5) & '|' & Right('perché', 2) & '|' & Mid('perché', 2, 3) & '|' & Mid('abc', 9)",
       "perch|hé|erc|"},
      {"Len('perché')", "6"},
      {"Len(12345)", "5"},
      {"UCase('perché') & LCase('ÀB')", "PERCHÉàb"},
      {"'[' & Trim('  a b ') & ']' & LTrim(' c') & RTrim('d ')", "[a b]cd"},
      {"InStr('abcABC', 'C')", "3"},
      {"InStr(4, 'abcABC', 'b')", "5"},
      {"InStr('abc', 'z')", "0"},
      {"Val('12,5abc') + Val(' 3.5')", "15,5"},
      {"CStr(1.5) & CStr(True) & CStr(#12/31/1999#)", "1,5-131/12/1999"},
      {"CDate('16/11/2026') + 0.5", "16/11/2026 12:00:00"},
      {"#3/1/2000# - #2/28/2000#", "2"},
      {"Year(#2001-05-07 10:20:30#) & '-' & Month(#5/7/2001#) & '-' & Day(#5/7/2001#)", "2001-5-7"},
      {"Format(#2001-05-07#, 'dd/mm/yyyy')", "07/05/2001"},
      {"DateSerial(2008, 14, 0)", "31/01/2009"},
      {"CBool(2) & CBool('0')", "-10"},
      {"IIf(1 > 2, 'a', IIf(True, 3, 'c'))", "3"},
      {"Sgn(-2.5) & Space(2) & Chr(224) & Asc('à')", "-1  à224"},
      {"IsNumeric('1.234,5') AND NOT IsNumeric('x') AND IsDate('1/2/2003') AND NOT IsDate(5)", "Vero"},
      {"Left('a', -1)", "error 5"},
      {"Mid('a', 0)", "error 5"},
      {"Left$('abc', 1)", "a"},
      {"Date() <= Now() AND Now() - Date() < 1 AND Time() < 1 AND Timer() >= 0", "Vero"},
  });
}

TEST(Functions, OfDatesCountOnTheCalendar) {
  expectValues({
      {"DateAdd('m', 6, #8/31/2008#)", "28/02/2009"},
      {"DateAdd('yyyy', -1, #2/29/2024#) & DateAdd('n', -1, #1/1/2000#)", "28/02/202331/12/1999 23:59:00"},
      {"DateAdd('d', 1, Null)", "Null"},
      {"DateAdd('d', Null, #1/1/2000#)", "error 94"},
      {"DateAdd('giorni', 1, #1/1/2000#)", "error 5"},
      {"DateAdd('d', 1, '31/12/1999')", "01/01/2000"},
      {"DateDiff('d', #1/1/2026 23:59#, #1/2/2026 0:01#) & DateDiff('yyyy', #12/31/2025#, #1/1/2026#)", "11"},
      {"DateDiff('ww', #1/3/2026#, #1/4/2026#) & DateDiff('ww', #1/3/2026#, #1/4/2026#, 2)", "10"},
      {"DateDiff('d', Null, Date())", "Null"},
      {"DatePart('q', #11/16/2026#) & DatePart('ww', #1/1/2027#, 2, 2)", "453"},
      {"Weekday(#11/16/2026#) & Weekday(#11/16/2026#, 2) & Weekday(#11/16/2026#, 8)", "error 5"},
      {"Weekday(#11/16/2026#) & Weekday(#11/16/2026#, 2)", "21"},
      {"MonthName(11) & MonthName(1, True) & WeekdayName(1) & WeekdayName(1, True, 1)",
       "novembregenlunedìdom"},
      {"WeekdayName(7) & WeekdayName(2, False, 7)", "domenicadomenica"},
      {"MonthName(13)", "error 5"},
      {"WeekdayName(0)", "error 5"},
      {"TimeSerial(17, 76, 5)", "18:16:05"},
      {"DateValue('16/11/2026 17:16') & ' ' & TimeValue('16/11/2026 17:16')", "16/11/2026 17:16:00"},
      {"DateValue('domani')", "error 3464"},
      {"DateSerial(2026, Null, 1)", "error 94"},
      {"Month(Null)", "Null"},
      {"Hour(#12/29/1899 6:00#) & Day(#12/29/1899 6:00#)", "629"},
  });
}

TEST(Functions, FormatWhatTheSuiteShows) {
  expectValues({
      {"Format(7, '0000') & Format(CByte(3), '00') & Format(123456, '0000000')", "0007030123456"},
      {"Format('7', '000') & Format(CCur(1234.5), '#,##0.00') & Format(0.125, '0.00')", "0071.234,500,13"},
      {"Format(CCur(-1234.5), 'Currency') & Format(2.5, 'Standard')", "-€ 1.234,502,50"},
      {"Format(CDec('12345678901234567890,125'), '#,##0.00')", "12.345.678.901.234.567.890,13"},
      {"Format(#11/16/2026 17:16#, 'Long Date') & Format(#11/16/2026#, 'w ww', 2, 2)",
       "lunedì 16 novembre 20261 47"},
      {"Format('abc', '>') & Format('', '@;\"nulla\"') & Format(Null, '0;0;0;\"-\"')", "ABCnulla-"},
      {"Format(True, 'Yes/No') & Format(0, 'True/False') & Format(Null, 'dd')", "SìFalso"},
      {"FormatNumber(-1234.567) & FormatNumber(-0.5, 1, 0, -1, 0) & FormatNumber('1234,5', 0)",
       "-1.234,57(,5)1.235"},
      {"FormatCurrency(CCur(-1234.5)) & FormatPercent(0.256, 1)", "-€ 1.234,5025,6%"},
      {"FormatDateTime(#11/16/2026 17:16#) & FormatDateTime(#11/16/2026 17:16#, 4)",
       "16/11/2026 17:16:0017:16"},
      {"Date$() Like '##-##-####' And Time$() Like '##:##:##'", "Vero"},
      {"Format(1.5) & Format$(#11/16/2026#)", "1,516/11/2026"},
      {"Format$(Null, '0')", "error 94"},
  });
}

TEST(Functions, TakeTextsApart) {
  expectValues({
      {"InStr(1, 'aBc', 'b', 0) & InStr(1, 'aBc', 'b', 1) & InStr('aBc', 'b')", "022"},
      {"InStr(1, 'a', 'a', 3)", "error 5"},
      {"InStr(0, 'a', 'a')", "error 5"},
      {"InStr('abc', Null)", "Null"},
      {"InStrRev('aXbXc', 'x') & InStrRev('aXbXc', 'x', 3) & InStrRev('aXbXc', 'x', -1, 0)", "420"},
      {"Replace('à-b', '-', '--') & Replace('aAa', 'a', 'b', 1, 2) & Replace('aAa', 'a', 'b', 1, -1, 0)",
       "à--bbbabAb"},
      {"Replace(Null, 'a', 'b')", "error 94"},
      {"StrComp('a', 'A') & StrComp('a', 'A', 0) & StrComp('a', 'è') & StrComp('z', 'è')", "01-11"},
      {"StrComp(Null, 'a')", "Null"},
      {"StrConv('PERCHÉ no', 3) & StrConv('x', 1) & StrReverse('né')", "Perché NoXén"},
      {"String(3, 'àb') & String(2, 42) & String(2, 256 + 224)", "ààà**àà"},
      {"String(-1, 'a')", "error 5"},
      {"String(Null, 'a')", "Null"},
      {"Chr(128) & ChrW(8364) & Asc('€') & AscW('€')", "€€1288364"},
      {"Chr(256)", "error 5"},
      {"Asc('')", "error 5"},
      {"Mid('perché', 5, 9) & Mid$('abc', 2, 1)", "héb"},
      {"Mid('abc', Null)", "error 94"},
      {"Left$(Null, 1)", "error 94"},
      {"Trim$(Null)", "error 94"},
      {"UCase(Null)", "Null"},
      {"Partition(15, 0, 99, 10)", " 10: 19"},
      {"Len(Null)", "Null"},
  });
}

TEST(Functions, ReckonAndConvert) {
  expectValues({
      {"Round(2.5) & Round(3.5) & Round(-2.5) & Round(CCur(1.005), 2) & Round(CCur(1.015), 2)", "24-211,02"},
      {"Round(CDec('0,12345678901234567850'), 19) & Round(1, -1)", "error 5"},
      {"Round(CDec('0,12345678901234567850'), 18)", "0,123456789012345678"},
      {"Int(CCur(-0.0001)) & Fix(CCur(-1.5)) & Int(CDec('-1,5')) & Fix(CDec('-1,5')) & Abs(CDec('-1,5'))",
       "-1-1-2-11,5"},
      {"Int(CCur('922337203685476,9999'))", "922337203685476"},
      {"Abs(True) & Abs(-5) & Abs(CCur(-0.5))", "150,5"},
      {"Abs(-2147483647 - 1)", "error 6"},
      {"Abs(Null)", "Null"},
      {"Int(#11/16/2026 17:16#)", "16/11/2026"},
      {"Sqr(2.25) & Exp(0) & Log(1) & Sin(0) & Cos(0) & Tan(0) & Int(Atn(1) * 4000)",
       "1,510010"
       "3141"},
      {"Sqr(-1)", "error 5"},
      {"Log(0)", "error 5"},
      {"Exp(1000)", "error 6"},
      {"Sqr(Null)", "error 94"},
      {"Hex(255) & ' ' & Hex(-1) & ' ' & Hex(CInt(-1)) & ' ' & Oct(8) & ' ' & Hex(255.5)",
       "FF FFFFFFFF FFFF 10 100"},
      {"Hex('x')", "error 13"},
      {"CLng(Null)", "error 94"},
      {"CStr(Null)", "error 94"},
      {"CDate(Null)", "error 94"},
      {"CVDate(Null)", "Null"},
      {"CVar(Null)", "Null"},
      {"CVar(2.5) & CDec('1,50') & CSng('0,1') & CByte('7') & CDbl(True)", "2,51,50,17-1"},
      {"CInt('32768')", "error 6"},
      {"Val(Null)", "error 94"},
      {"IsNumeric('') & IsNumeric(Null) & IsNumeric(True) & IsNumeric('1E400') & IsNumeric(Date())",
       "00-100"},
      {"IsDate(Null) & IsDate(Date()) & IsDate('31/2/2026')", "0-10"},
      {"IsEmpty(1) & IsError(1) & IsObject(1)", "000"},
      {"TypeName(CCur(1)) & TypeName('') & TypeName(Null) & VarType(1.5) & VarType(#1/1/2000#) & "
       "VarType(True)",
       "CurrencyStringNull5711"},
      {"Rnd() >= 0 AND Rnd(1) < 1 AND Rnd(-1) < 0.2240071 AND Rnd(-1) > 0.224007", "Vero"},
  });
}

TEST(Functions, ChooseAmongValues) {
  expectValues({
      {"Switch(1 = 2, 'a', 2 = 2, 'b', True, 'c')", "b"},
      {"Switch(False, 1)", "Null"},
      {"Switch(Null, 1, True, 2.5)", "2,5"},
      {"Switch(True, 1, False)", "error 3085 at 7"},
      {"Choose(2, 'a', 'b') & Choose(1, 1, #1/1/2000#)", "b1"},
      {"Choose(0, 'a') & Choose(3, 'a', 'b')", "Null"},
      {"Choose(Null, 'a')", "error 94"},
      {"Nz(Null, 5) & Nz(CCur(Nz(Null, 0))) & Nz('')", "50"},
      {"Environ('PATH')", "error 3085 at 7"},
      {"Shell('ls')", "error 3085 at 7"},
      {"CurDir()", "error 3085 at 7"},
      {"DateAdd('d', 1)", "error 3085 at 7"},
      {"Left('a', 1, 2)", "error 3085 at 7"},
      {"DateAdd$('d', 1, 2)", "error 3085 at 7"},
  });
}

TEST(Functions, HaveTypesThatAreKnownBeforeAStatementRuns) {
  const Case cases[] = {
      {"DateAdd('m', 6, iscritto)", "Date"},
      {"DateDiff('d', iscritto, data)", "Long"},
      {"DatePart('m', iscritto)", "Integer"},
      {"Switch(attivo, quota, True, livello)", "Currency"},
      {"Switch(attivo, iscritto)", "Date"},
      {"Choose(livello, soci.nome, 5)", "Text"},
      {"Choose(livello, iscritto, data)", "Date"},
      {"Round(quota, 2)", "Currency"},
      {"Int(iscritto)", "Date"},
      {"Fix(mezzo)", "Single"},
      {"Abs(attivo)", "Integer"},
      {"Round(peso)", "Decimal"},
      {"CDec(livello)", "Decimal"},
      {"CVar(quota)", "Currency"},
      {"Nz(iscritto)", "Date"},
      {"Nz(quota)", "Currency"},
      {"Nz(soci.nome)", "Text"},
      {"StDev(livello)", "Double"},
      {"Timer()", "Single"},
      {"Format(quota, '0')", "Text"},
  };
  SmallImage image;
  for (const Case& row : cases)
    EXPECT_EQ(typeOfExpression(image, row.expression), row.value) << row.expression;
}

TEST(Aggregates, TellTheSpreadOfTheirRows) {
  SmallImage image;
  EXPECT_EQ(image.rows("SELECT Var(id), VarP(id), StDev(id), StDevP(id) FROM pagamenti"),
            "1,66666666666667|1,25|1,29099444873581|1,11803398874989");
  EXPECT_EQ(image.rows("SELECT Var(id), VarP(id), StDev(id), StDevP(id) FROM pagamenti WHERE id = 1"),
            "Null|0|Null|0");
  EXPECT_EQ(image.rows("SELECT VarP(importo), StDev(peso) FROM pagamenti WHERE id = 4"), "Null|Null");
  EXPECT_EQ(image.rows("SELECT Var(importo), VarP(peso) FROM pagamenti WHERE id < 3"), "120,125|0,390625");
}

TEST(Domains, GiveOneValueOfAnotherTable) {
  const Case cases[] = {
      {"SELECT DLookup('nome', 'soci', 'id = 2')", "bruno"},
      {"SELECT DLookup('nome & cognome', '[soci]', 'id' & ' > 2')", "EzioBianchi"},
      {"SELECT DLookup('nome', 'soci', 'id = 99')", "Null"},
      {"SELECT DCount('*', 'pagamenti') & DCount('data', 'pagamenti') & DCount('*', 'pagamenti', 'socio = "
       "9')",
       "431"},
      {"SELECT DSum('importo', 'pagamenti'), DMin('data', 'pagamenti'), DMax('importo', 'pagamenti', 'socio "
       "= 1')",
       "40,5|10/10/2006|25,5"},
      {"SELECT DAvg('importo', 'pagamenti', 'socio = 1'), DVarP('id', 'pagamenti'), DStDev('id', 'soci')",
       "17,75|1,25|1"},
      {"SELECT DFirst('nome', 'soci') & DLast('nome', 'soci')", "AnnaEzio"},
      {"SELECT nome, DSum('importo', 'pagamenti', 'socio = ' & id) FROM soci",
       "Anna|35,5; bruno|5; Ezio|Null"},
      {"SELECT id, DLookup('quota', 'soci', 'nome = ''' & nome & '''') FROM soci WHERE id < 3",
       "1|125; 2|50"},
      {"SELECT DCount('*', nome) FROM (SELECT 'soci' AS nome) AS x", "3"},
      {"SELECT id FROM soci WHERE DCount('*', 'pagamenti', 'socio = ' & id) > 1", "1"},
      {"SELECT nome FROM soci WHERE id = DMax('id', 'soci', 'id IN (SELECT socio FROM pagamenti)')", "bruno"},
      {"SELECT DLookup('nome', 'soci', 'id = ' & Null & '1')", "Anna"},
      {"SELECT DLookup('nome', 'soci', 'id =')", "error 3075 at 7"},
      {"SELECT DLookup('nome', 'soci', 'id = ' & id) FROM (SELECT Null AS id) AS x", "error 3075"},
      {"SELECT DLookup('nome', 'assente')", "error 3078 at 7"},
      {"SELECT DLookup('nome', 'soci', 'ignoto = ' & id) FROM soci WHERE id = 1", "error 3061"},
      {"SELECT DLookup(Null, 'soci')", "error 94"},
      {"SELECT DSum('importo')", "error 3085 at 7"},
  };
  SmallImage image;
  for (const Case& row : cases) EXPECT_EQ(image.run(row.expression), row.value) << row.expression;
  EXPECT_EQ(typeOfExpression(image, "DLookup('quota', 'soci', 'id = ' & soci.id)"), "Currency");
  EXPECT_EQ(image.run("UPDATE soci SET quota = DSum('importo', 'pagamenti', 'socio = ' & id) WHERE id < 3"),
            "2");
  EXPECT_EQ(image.run("SELECT quota FROM soci"), "35,5; 5; Null");
}

}  // namespace
}  // namespace jet::sql::test
