// ReadXmi TYPESYSTEM XMI...: tells, as JSON, what Apache UIMA reads from files of
// `quilltags export --to xmi`.
import java.io.FileInputStream;
import java.io.InputStream;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import org.apache.uima.UIMAFramework;
import org.apache.uima.cas.CAS;
import org.apache.uima.cas.Feature;
import org.apache.uima.cas.Type;
import org.apache.uima.cas.FeatureStructure;
import org.apache.uima.cas.impl.XmiCasDeserializer;
import org.apache.uima.cas.text.AnnotationFS;
import org.apache.uima.resource.metadata.TypeSystemDescription;
import org.apache.uima.util.CasCreationUtils;
import org.apache.uima.util.XMLInputSource;

class ReadXmi {
  private static String quoted(String text) {
    StringBuilder json = new StringBuilder("\"");
    for (char c : text.toCharArray()) {
      json.append(c < 0x20 || c == '"' || c == '\\' ? String.format("\\u%04x", (int) c) : c);
    }
    return json.append('"').toString();
  }

  private static String described(AnnotationFS tag, Type type, List<FeatureStructure> all) {
    StringBuilder json = new StringBuilder("{\"covered\": " + quoted(tag.getCoveredText()));
    Feature number = type.getFeatureByBaseName("number");
    Feature reference = type.getFeatureByBaseName("reference");
    json.append(", \"number\": " + tag.getIntValue(number));
    FeatureStructure target = tag.getFeatureValue(reference);
    if (target != null) json.append(", \"reference\": " + (all.indexOf(target) + 1));
    for (Feature feature : type.getFeatures()) {
      if (!feature.getRange().getName().equals(CAS.TYPE_NAME_STRING)) continue;
      String value = tag.getStringValue(feature);
      if (value != null) json.append(", " + quoted(feature.getShortName()) + ": " + quoted(value));
    }
    return json.append("}").toString();
  }

  private static String read(TypeSystemDescription types, String path) throws Exception {
    CAS cas = CasCreationUtils.createCas(types, null, null);
    try (InputStream in = new FileInputStream(path)) {
      XmiCasDeserializer.deserialize(in, cas);
    }
    Type type = cas.getTypeSystem().getType("quillorandix.TemporalOperator");
    List<FeatureStructure> all = new ArrayList<>();
    for (AnnotationFS tag : cas.getAnnotationIndex(type)) all.add(tag);
    List<String> tags = new ArrayList<>();
    for (FeatureStructure tag : all) tags.add(described((AnnotationFS) tag, type, all));
    return "{\"text\": " + quoted(cas.getDocumentText()) + ", \"tags\": [" + String.join(",\n", tags)
        + "]}";
  }

  public static void main(String[] paths) throws Exception {
    TypeSystemDescription types =
        UIMAFramework.getXMLParser().parseTypeSystemDescription(new XMLInputSource(paths[0]));
    List<String> texts = new ArrayList<>();
    for (int i = 1; i < paths.length; i++) texts.add(read(types, paths[i]));
    new PrintStream(System.out, true, StandardCharsets.UTF_8)
        .println("[" + String.join(",\n", texts) + "]");
  }
}
