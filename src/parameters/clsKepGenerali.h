#pragma once

#include "parameters/proprieta.h"

namespace parameters {

/// The parameters of a database as typed properties: the table of all keys, one line each, with its shape
/// (proprieta.h), its key and its default. `kep.DataWeb()` reads, `kep.NorvoUnico(1)` writes. Db comes first.
class clsKepGenerali : public RigaKepGenerali {
 public:
  // Switches, off without a row.
  Flag GeneraFlussoCoGe{this, "GeneraFlussoCoGe"};
  Flag GestioneOCC{this, "GestioneOCC"};
  Flag CodCollaudatoreCA{this, "CodCollaudatoreCA"};
  Flag EscludiControlloPrivacy{this, "EscludiControlloPrivacy"};
  Flag EscludiProfessori{this, "EscludiProfessori"};
  Flag GestioneAnzianita{this, "GestioneAnzianita"};
  Flag AggiungiProfiloPrivacyResidenza{this, "AggiungiProfiloPrivacyResidenza"};
  Flag StatusAnzianitaUnificato{this, "StatusAnzianitaUnificato"};
  Flag ScadRelazPratAnnuale{this, "ScadRelazPratAnnuale"};
  Flag DomandaSenzaProtocollo{this, "DomandaSenzaProtocollo"};
  Flag StudioAssociatoSenzaRecapiti{this, "StudioAssociatoSenzaRecapiti"};
  Flag MorePagamentiInRitardo{this, "MorePagamentiInRitardo"};
  Flag GestioneAgenda{this, "GestioneAgenda"};
  Flag GestioneElezioni{this, "GestioneElezioni"};
  Flag SanMarino{this, "SanMarino"};
  Flag ArchAltraNumSezioneB{this, "ArchAltraNumSezioneB"};
  Flag ModificaNumeroTesserino{this, "ModificaNumeroTesserino"};
  Flag DataIscrizioneSettore{this, "DataIscrizioneSettore"};
  Flag EDEtichetteDirette{this, "EDEtichetteDirette"};
  Flag ProtocolloCertificati{this, "ProtocolloCertificati"};
  Flag Disciplinare{this, "Disciplinare"};
  Flag DocumentiModifica{this, "DocumentiModifica"};
  Flag SelezioneSorteggio{this, "SelezioneSorteggio"};
  Flag OperazioniMultiple{this, "OperazioniMultiple"};
  Flag ProgressivoDomanda{this, "ProgressivoDomanda"};
  Flag Regresso{this, "Regresso"};
  Flag Questionario2K{this, "Questionario2K"};
  Flag Parcelle{this, "Parcelle"};
  Flag Tirocinanti{this, "Tirocinanti"};
  Flag PecOAMI{this, "PecOAMI"};
  Flag PecIngCT{this, "PecIngCT"};
  Flag NorvoOnore{this, "NorvoOnore"};
  Flag ExportArchMO{this, "ExportArchMO"};
  Flag ExportArchFC{this, "ExportArchFC"};
  Flag ExportArchPN{this, "ExportArchPN"};
  Flag ExportGeomMI{this, "ExportGeomMI"};
  Flag ExportGeomRE{this, "ExportGeomRE"};
  Flag ExportGeomGR{this, "ExportGeomGR"};
  Flag ExportGeomBZ{this, "ExportGeomBZ"};
  Flag ExportPsiPuglia{this, "ExportPsiPuglia"};
  Flag DenominazioneStudio{this, "DenominazioneStudio"};
  Flag NumerazioneUnicaPratODC{this, "NumerazioneUnicaPratODC"};
  Flag NumerazioneUnicaNrNorvo{this, "NumerazioneUnicaNrNorvo"};
  Flag NrNorvoPraticanti{this, "NrNorvoPraticanti"};
  Flag ControlloFestivitaScadenzaPratica{this, "ControlloFestivitaScadenzaPratica"};
  Flag NumeratoreRicevute{this, "NumeratoreRicevute"};
  Flag NumeratoreRicevutePerData{this, "NumeratoreRicevutePerData"};
  Flag RelazioniSemestraliPraticanti{this, "RelazioniSemestraliPraticanti"};
  Flag IntestaCodiceFiscale{this, "IntestaCodiceFiscale"};
  Flag IntestaNrNorvo{this, "IntestaNrNorvo"};
  Flag UsaSezioniDistaccateTribunale{this, "UsaSezioniDistaccateTribunale"};
  Flag MandamentoResidenza{this, "MandamentoResidenza"};
  Flag SoloAbilitazione328{this, "SoloAbilitazione328"};
  Flag RecapitoNorvo{this, "RecapitoNorvo"};
  Flag AnagraficaMultipla{this, "AnagraficaMultipla"};
  Flag AttivitaAggiuntiva1{this, "AttivitaAggiuntiva1"};
  Flag DatiProfAbbreviati{this, "DatiProfAbbreviati"};
  Flag CodiceClienteDebitore{this, "CodiceClienteDebitore"};
  Flag VecchioMenu{this, "VecchioMenu"};
  Flag VecchioOrdinamentoSettori{this, "VecchioOrdinamentoSettori"};
  Flag ExportCNI_DatiPersonali{this, "ExportCNI_DatiPersonali"};
  Flag CaricaComboArchivio{this, "CaricaComboArchivio"};

  Scrivibile<Flag> DataFinePubblicazione{this, "DataFinePubblicazione"};
  Scrivibile<Flag> QuoteOrdinamentoInverso{this, "QuoteOrdinamentoInverso"};
  Scrivibile<Flag> ImapDotNet{this, "ImapDotNet"};
  Scrivibile<Flag> PubblicaMotivoSosp{this, "PubblicaMotivoSosp"};
  Scrivibile<Flag> PubblicaMorositaSosp{this, "PubblicaMorositaSosp"};
  Scrivibile<Flag> MorePercentuale{this, "MorePercentuale"};
  Scrivibile<Flag> ProtocolloAnnotazioni{this, "ProtocolloAnnotazioni"};
  Scrivibile<Flag> ProtocolloFascicoliMultipli{this, "ProtocolloFascicoliMultipli"};

  // Switches, on without a row.
  Flag CognomiNomiMaiuscoli{this, "CognomiNomiMaiuscoli", true};
  Flag EtichetteEgrGent{this, "EtichetteEgrGent", true};
  Flag IndirizziMaiuscoli{this, "IndirizziMaiuscoli", true};
  Scrivibile<Flag> ProtocolloRgpOggi{this, "ProtocolloRgpOggi", true};

  // Switches under another key. These differences are settled and stay.
  Flag Tellaro{this, "TellaroDB"};
  Flag PecIngUD{this, "PecIngCT"};
  Flag SospensioniPerDecorrenza{this, "SospensioniPerDataDecorrenza"};
  Flag CancellazioniPerDecorrenza{this, "CancellazioniPerDataDecorrenza"};

  // Texts.
  Testo AggiornamentiAutomatici{this, "AggiornamentiAutomatici"};
  Testo ProtocolloSigla{this, "ProtocolloSigla"};
  Testo ProtocolloRegVarAgg{this, "ProtocolloRegVarAgg"};
  Testo TipiProvvedimento{this, "TipiProvvedimento"};
  Testo EtichetteFormatIscrizionePraticanti{this, "EtichetteFormatIscrizionePraticanti"};
  Testo EtichetteFormatIscrizioneNorvo{this, "EtichetteFormatIscrizioneNorvo"};
  Testo NewsLetter1{this, "NewsLetter1"};
  Testo NewsLetter2{this, "NewsLetter2"};
  Testo FaxServer{this, "FaxServer"};
  Testo Cellulare{this, "Cellulare"};
  Testo EDFontName{this, "EDFontName"};
  Testo NomeLibroSociADCECMN{this, "NomeLibroSociADCECMN"};

  Scrivibile<Testo> ProtocolloSegnatura{this, "ProtocolloSegnatura"};
  Scrivibile<Testo, Scrittura::NotaCorrente> AnagrafeTributariaParam{this, "AnagrafeTributariaParam"};

  // Texts of the column Note.
  Nota SincroDB{this, "SincroDB"};
  Nota TellaroDB{this, "TellaroDB"};
  Nota FpcDB{this, "FpcDB"};
  Nota DescrizioneSospensioneTempoIndeterminato{this, "DescrizioneSospensioneTempoIndeterminato"};
  Nota DescrizioneSospensioneTempoDeterminato{this, "DescrizioneSospensioneTempoDeterminato"};
  Nota FaldoPath{this, "FaldoPath"};
  Nota FaldoDir{this, "FaldoDir"};
  Nota SorboTopConn{this, "SorboTopConn"};
  Nota ProtocolloCfgVarie{this, "ProtocolloCfgVarie"};
  Nota TempAlternativa{this, "TempAlternativa"};

  // Whole numbers, 16 bits: default, then the least and the greatest that count.
  Intero TipoRiconoscimentoMAV{this, "TipoRiconoscimentoMAV", 0};
  Intero StampaNorvoStudiAssociatiSTP{this, "StampaNorvoStudiAssociatiSTP", 0};
  Intero DataWeb{this, "DataWeb", 0};
  Intero AutomazioneProtEmail{this, "AutomazioneProtEmail", 0};
  Intero DifferenzaInGiorniScadenzaPratica{this, "DifferenzaInGiorniScadenzaPratica", 0};
  Intero MavRiga59ColonnaNumeroDisposizione{this, "MavRiga59ColonnaNumeroDisposizione", 0};
  Intero MavRiga59LineaNumeroDisposizione{this, "MavRiga59LineaNumeroDisposizione", 0};
  Intero SessioneAbilitazioneTipo{this, "SessioneAbilitazioneTipo", 0};
  InteroComeLungo TitoloStudioDefault{this, "TitoloStudioDefault", 0};
  Intero AvvisoScadenzaPraticantiGG{this, "AvvisoScadenzaPraticantiGG", -1};
  Intero CalcoloInGiorniScadenzaPratica{this, "CalcoloInGiorniScadenzaPratica", -1};
  Intero CalcoloInMesiScadenzaPratica{this, "CalcoloInMesiScadenzaPratica", -1};
  Intero AnnoProtocolloNumerazioneUnica{this, "AnnoProtocolloNumerazioneUnica", 2004};
  Intero MavRiga59LunghezzaNumeroDisposizione{this, "MavRiga59LunghezzaNumeroDisposizione", 10};
  InteroSenzaTrappola EDEtichetteOrizzontale{this, "EDEtichetteOrizzontale", 3};
  InteroSenzaTrappola EDEtichetteVerticale{this, "EDEtichetteVerticale", 8};
  InteroSenzaTrappola EDFontSize{this, "EDFontSize", 10, 0};
  InteroSenzaTrappola CtrlCapComuneProv{this, "CtrlCapComuneProv", 2, 0, 2};

  Scrivibile<Intero, Scrittura::NotaCorrente> CambioPwdAutomatico{this, "CambioPwdAutomatico", 0};
  Scrivibile<Intero, Scrittura::NotaEDatiCorrenti> NorvoUnico{this, "NorvoUnico", 0};
  Scrivibile<Intero> NorvoUnicoPrat{this, "NorvoUnicoPrat", 0};
  Scrivibile<InteroSenzaTrappola, Scrittura::NotaModificabile> TipoNumeratoreParcella{
      this, "TipoNumeratoreParcella", 0};

  // Whole numbers, 32 bits. Colours are 0xBBGGRR.
  Lungo CodiceADCECMN{this, "CodiceADCECMN", 0};
  Lungo BackColorPcy{this, "BackColorPcy", 0x8080FF};
  Lungo BackColorNoPcy{this, "BackColorNoPcy", 0x80FFFF};

  Scrivibile<Lungo, Scrittura::NotaNull> ProtocolloAccountNotifiche{this, "ProtocolloAccountNotifiche", 0};
  Scrivibile<Lungo, Scrittura::NotaNull> ProtSviluppoListe{this, "ProtSviluppoListe", -1};

  // Numbers at the beginning of a text.
  Scrivibile<Iniziale> ProtocolloEliminaFileDopoConferma{this, "ProtocolloEliminaFileDopoConferma", 0};
  Scrivibile<Iniziale> ProtocolloEtichetteWord{this, "ProtocolloEtichetteWord", 0};
  Scrivibile<Iniziale> ProtocolloNumeroSuccessivo{this, "ProtocolloNumeroSuccessivo", 0};
  Scrivibile<Iniziale> ProtocolloNoCorrispondenti{this, "ProtocolloNoCorrispondenti", 0};
  Scrivibile<Iniziale> ProtocolloMailto{this, "ProtocolloMailto", 0};
  Scrivibile<Iniziale> ProtocolloWorkflow{this, "ProtocolloWorkflow", 0};
  Scrivibile<Iniziale> ProtocolloCaricaCorrispondenti{this, "ProtocolloCaricaCorrispondenti", 1};
  Scrivibile<InizialeLungo, Scrittura::NotaCorrente> ProtocolloAnnotazioniExt{this,
                                                                              "ProtocolloAnnotazioniExt", 0};

  // Numbers of a choice, from the first to the last.
  Scrivibile<Ammesso> ProtocolloSicurezza{this, "ProtocolloSicurezza", 0, 2};
  Scrivibile<Ammesso> ProtocolloArgomentiMultilivello{this, "ProtocolloArgomentiMultilivello", 0, 3};

  // Lengths of a layout, in twips.
  Misura EDAltezzaModulo{this, "EDAltezzaModulo", 17280};
  Misura EDLarghezzaModulo{this, "EDLarghezzaModulo", 18720};
  Misura EDPassoOrizzontale{this, "EDPassoOrizzontale", 5880};
  Misura EDPassoVerticale{this, "EDPassoVerrticale", 2160};
  Misura EDMargineSx{this, "EDMargineSx", 0};
  Misura EDMargineTop{this, "EDMargineTop", 0};

  // Parameters with a logic of their own.

  std::string NoteSospensioniChiudiTerminate;  // filled by the property of that name
  std::string NoteRadiazioniChiudiTerminate;

  /// The switch "InizialiMaiuscole" of a field.
  std::int16_t InizialiMaiuscole(const std::string& campo);
  /// "4" for an empty text too.
  std::string TipoPagamentoMav();
  /// The text number `indice`. Written with the fields `note` and `dati` as they stand.
  std::string ProtocolloCfgImap(std::int16_t indice);
  void ProtocolloCfgImap(std::int16_t indice, const std::string& valore);
  /// A path, kept in Note.
  std::string ProtocolloPercorsoI();
  void ProtocolloPercorsoI(const std::string& percorso);
  /// Note; where it is empty, "1" for a switch that is on.
  std::string Curriculum();
  /// Valore without the blanks around it; `lunghezza` gets the number at the beginning of Note, or stays
  /// where there is no row.
  std::string ProtocolloCampoPersonalizzato(std::int16_t& lunghezza);

  /// 0 to 5, otherwise as Ammesso. Reading 4 switches DataFinePubblicazione on. A value that isn't one of
  /// them is not written, after the box.
  std::int32_t PubblicazioneDisciplina();
  void PubblicazioneDisciplina(std::int32_t valore);
  /// 0 to 2. Writing keeps the row's note.
  std::int32_t ProtocolloInformatico();
  void ProtocolloInformatico(std::int32_t valore);
  std::int32_t ProtocolloScanner();
  void ProtocolloScanner(std::int32_t valore);
  /// 1 or 2; an absent row is 0 without a box, a stored 0 is not one of them. Their note goes to the field
  /// Note..., empty otherwise.
  std::int32_t SospensioniChiudiTerminate();
  std::int32_t RadiazioniChiudiTerminate();

  /// A Date from Note, Null where that is none. Writing keeps Valore, or empties it.
  runtime::Variant DataProtocolloInformatico();
  void DataProtocolloInformatico(const runtime::Variant& data);
  runtime::Variant DataControlloComuniVariati();
  void DataControlloComuniVariati(const runtime::Variant& data);
  void ControllaCongruenzaDatabase(const std::string& testo);
  /// Valore as a text, Null without a row. Written with a note that says what it is.
  runtime::Variant ProtocolloUnitaOrganizzative();
  void ProtocolloUnitaOrganizzative(const runtime::Variant& valore);
  runtime::Variant ProtocolloDataTmpBypass();
  void ProtocolloDataTmpBypass(const runtime::Variant& valore);

  /// 1 if there is a row, 0 without.
  std::int16_t SospensioniNumeroProgressivo();

 private:
  std::int32_t chiudiTerminate(const char* chiave, std::string& nota);
  void conNotaDellaRiga(const char* chiave, std::int32_t valore);
  runtime::Variant dataInNota(const char* chiave);
  runtime::Variant valoreONull(const char* chiave);
};

}  // namespace parameters
