-- Query di tutte le applicazioni.
.query comuni_attuali SELECT ISTAT, Comune, PROVINCIA, CAP FROM italia_comuni WHERE DataFine = #12/31/9999# ORDER BY Comune, PROVINCIA
.query protocollo_anno PARAMETERS parAnno Short; SELECT anno, id_prot, tipo, dt_registrazione, ds_oggetto, ds_corrispondente FROM prot_registrazione WHERE anno = parAnno AND mese = 0 ORDER BY id_prot, tipo
.query protocollo_argomenti SELECT a.cd_argomento, a.ds_argomento, Count(c.id_prot) AS Registrazioni FROM prot_argomenti AS a LEFT JOIN prot_reg_contenuti AS c ON a.cd_argomento = c.cd_argomento GROUP BY a.cd_argomento, a.ds_argomento
