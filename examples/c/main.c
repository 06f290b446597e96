/* SPDX-License-Identifier: MIT
 *
 * Converts the A2L file that its argument names: the document goes to standard output, warnings and
 * errors go to standard error in the form that compilers have made common.
 */
#include <a2l2json.h>
#include <stdio.h>

static void print_diagnostics(const char* path, const a2l2json_result* result) {
  const size_t count = a2l2json_diagnostic_count(result);
  size_t i;
  for (i = 0; i < count; ++i) {
    const a2l2json_diagnostic* diagnostic = a2l2json_diagnostic_at(result, i);
    fprintf(stderr, "%s:%lu: %s: ", path, (unsigned long)diagnostic->line,
            diagnostic->severity == A2L2JSON_ERROR ? "error" : "warning");
    fwrite(diagnostic->text, 1, diagnostic->text_size, stderr);
    fprintf(stderr, " [%s]\n", diagnostic->kind_name);
  }
}

int main(int argc, char** argv) {
  a2l2json_result* result = NULL;
  a2l2json_code code;
  size_t size = 0;
  const char* document;
  if (argc != 2) {
    fprintf(stderr, "usage: %s FILE.a2l (a2l2json %s)\n", argv[0], a2l2json_version());
    return 2;
  }
  code = a2l2json_convert_file(argv[1], NULL, &result);
  /* In what is not an A2L file, no line is worth a look. */
  if (code != A2L2JSON_NOT_A2L) print_diagnostics(argv[1], result);
  if (code == A2L2JSON_OK) {
    document = a2l2json_document(result, &size);
    fwrite(document, 1, size, stdout);
  } else {
    fprintf(stderr, "%s\n", a2l2json_error(result));
  }
  a2l2json_free(result);
  return code == A2L2JSON_OK ? 0 : 1;
}
