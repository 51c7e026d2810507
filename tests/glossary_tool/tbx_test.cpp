// SPDX-License-Identifier: MIT
// TermBase eXchange in the forms in which tools write it.
#include "run.h"

namespace termvik::test {

class Tbx : public ToolTest {
 protected:
  // The entries as rows of a table.
  std::string rows(const std::string& xml) {
    const std::string tsv = converted("a.tbx", xml, {"--to", "tsv"});
    return tsv.empty() ? last.err : tsv;
  }
  static std::string tbx3(const std::string& concepts) {
    return "<tbx type='TBX-Basic' style='dca' xml:lang='en' xmlns='urn:iso:std:iso:30042:ed-2'>"
           "<tbxHeader><fileDesc><sourceDesc><p><note>n</note></p></sourceDesc></fileDesc></"
           "tbxHeader>"
           "<text><body>" +
           concepts + "</body></text></tbx>";
  }
};

TEST_F(Tbx, IsReadInEachVersionAndStyle) {
  struct Case {
    std::string version;
    std::string xml;
    std::string rows;
  };
  for (const Case& c : std::vector<Case>{
           {"TBX 2 with tig and ntig",
            "<?xml version='1.0'?><!DOCTYPE martif SYSTEM 'TBXcoreStructV02.dtd'>"
            "<martif type='TBX' xml:lang='en'><martifHeader/><text><body><termEntry id='1'>"
            "<descripGrp><descrip type='definition'> Hard &amp; grey. </descrip></descripGrp>"
            "<descrip type='subjectField'>metal</descrip>"
            "<langSet xml:lang='sv-SE'><tig><term>st\xC3\xA5l</term><note>n1</note></tig></langSet>"
            "<langSet xml:lang='EN'><ntig><termGrp><term> steel\n</term></termGrp></ntig></langSet>"
            "</termEntry></body></text></martif>",
            "S\tE\tC\nstål\tsteel\t\"Hard & grey.\nn1\"\n"},
           {"TBX 3, DCA",
            tbx3("<conceptEntry id='c1'><langSec xml:lang='de'><termSec><term>St<hi>ahl</hi></term>"
                 "<termNote "
                 "type='x'>no</termNote></termSec><termSec><term>S2</term></termSec></langSec>"
                 "</conceptEntry>"),
            "D\nStahl|S2\n"},
           {"TBX 3, DCT",
            "<tbx style='dct' xmlns:basic='http://x'><text><body><conceptEntry>"
            "<basic:definition>d</basic:definition><langSec "
            "xml:lang='fr_CA'><termSec><term>a</term>"
            "<basic:note>n</basic:note></termSec></langSec></conceptEntry></body></text></tbx>",
            "F\tC\na\t\"d\nn\"\n"},
           {"TBX-Min",
            "<TBX dialect='TBX-Min'><header><languages source='de' target='en'/></header><body>"
            "<entry id='C3'><langGroup "
            "xml:lang='en'><termGroup><term>dog</term></termGroup></langGroup>"
            "</entry></body></TBX>",
            "E\ndog\n"}}) {
    EXPECT_EQ(rows(c.xml), c.rows) << c.version;
    EXPECT_EQ(last.status, 0) << c.version << last.err;
  }
}

TEST_F(Tbx, SaysItselfWhatItsEncodingIs) {
  const std::string body =
      tbx3("<conceptEntry><langSec xml:lang='sv'><term>\xE5\x80</term></langSec></conceptEntry>");
  EXPECT_EQ(rows("<?xml version='1.0' encoding='Windows-1252'?>" + body), "S\nå€\n");
  EXPECT_EQ(rows(body).substr(0, 15), "a.tbx:1: error:");
  EXPECT_EQ(last.status, 2);
  // A mark counts more than what the file says, which tools that save it anew leave as it was.
  std::string wide = "\xFF\xFE";
  for (const char16_t unit : fromUtf8("<?xml version='1.0' encoding='UTF-8'?>\r\n" +
                                      tbx3("<conceptEntry><langSec xml:lang='pl'>\r\n<term>\xC3\xA5"
                                           "</term></langSec><langSec xml:lang='de'>"
                                           "<term>\xC3\xA4</term></langSec></conceptEntry>"))) {
    wide += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
  }
  EXPECT_EQ(rows(wide), "D\nä\n");
  EXPECT_EQ(last.err, "a.tbx:3: warning: 1 word of the language 'pl' is passed over\n");
}

TEST_F(Tbx, TellsWhatItPassesOver) {
  EXPECT_EQ(
      rows(tbx3("\n<conceptEntry><langSec xml:lang='es-ES'><term>a</term><term>b</term></langSec>\n"
                "<note>x</note></conceptEntry>\n"
                "<conceptEntry><langSec xml:lang='es'><term>c</term></langSec>"
                "<langSec xml:lang='nb'><term>d</term></langSec>"
                "<langSec xml:lang='sv'><term>e</term><term> </term></langSec></conceptEntry>")),
      "S\ne\n");
  EXPECT_EQ(last.err,
            "a.tbx:2: note: the concept has no word in sv, en, de or fr and is passed over\n"
            "a.tbx:2: warning: 3 words of the language 'es' are passed over\n"
            "a.tbx:4: warning: 1 word of the language 'nb' is passed over\n");
  EXPECT_EQ(last.status, 1);
  for (const std::string other : {"", "S,E\na,b\n", "<html/>", "<feed><entry/></feed>", "<tbx>"}) {
    rows(other);
    EXPECT_EQ(last.status, 2) << other;
    EXPECT_EQ(last.out, "");
  }
}

TEST_F(Tbx, LoadsNothingFromOutsideAndExpandsNothingWithoutBound) {
  folder.writeBytes("secret.txt", "secret");
  const std::string use =
      "<text><body><conceptEntry><langSec xml:lang='sv'><term>a&e;b</term></langSec>"
      "</conceptEntry></body></text></tbx>";
  EXPECT_EQ(rows("<!DOCTYPE tbx [<!ENTITY e 'inside'>]><tbx>" + use), "S\nainsideb\n");
  EXPECT_EQ(last.status, 0);
  EXPECT_EQ(rows("<!DOCTYPE tbx [<!ENTITY e SYSTEM 'secret.txt'>]><tbx>" + use), "S\nab\n");
  EXPECT_EQ(last.status, 1);
  EXPECT_EQ(rows("<!DOCTYPE tbx SYSTEM 'secret.txt'><tbx>" + use), "S\nab\n");
  EXPECT_EQ(last.status, 1);
  std::string laughs = "<!DOCTYPE tbx [<!ENTITY a 'ha'>";
  for (char name = 'b'; name < 'l'; ++name) {
    laughs += std::string("<!ENTITY ") + name + " '";
    for (int i = 0; i < 10; ++i) laughs += std::string("&") + static_cast<char>(name - 1) + ";";
    laughs += "'>";
  }
  EXPECT_EQ(rows(laughs + "]><tbx>" + replaced(use, "&e;", "&k;")).substr(0, 15),
            "a.tbx:1: error:");
  EXPECT_EQ(last.status, 2);
}

TEST_F(Tbx, IsWrittenWithoutWhatItCannotHold) {
  folder.writeBytes(
      "a.txt", "v\r\n---\r\nF: f\r\nS: a<\x01 b&\r\nS: \x02\r\nE: e\r\nC: x>\r\n\x03y\r\n---\r\n");
  const Result result = run({"convert", "a.txt", "-", "--to", "tbx"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err,
            "a.txt:4: warning: XML cannot hold U+0001; it is left out\n"
            "a.txt:5: warning: XML cannot hold U+0002; it is left out\n"
            "a.txt:8: warning: XML cannot hold U+0003; it is left out\n");
  const std::string xml = result.out.substr(result.out.find("<body>"));
  EXPECT_EQ(replaced(replaced(xml, "  ", ""), "\n<", "<"),
            "<body><conceptEntry id=\"c1\"><note>x&gt;\ny</note>"
            "<langSec xml:lang=\"sv\"><termSec><term>a&lt; b&amp;</term></termSec></langSec>"
            "<langSec xml:lang=\"en\"><termSec><term>e</term></termSec></langSec>"
            "<langSec xml:lang=\"fr\"><termSec><term>f</term></termSec></langSec>"
            "</conceptEntry></body></text></tbx>\n");
}

}  // namespace termvik::test
