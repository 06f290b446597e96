/* SPDX-License-Identifier: MIT
 *
 * The converter for programs in C, and for all that can call C.
 *
 *   a2l2json_result* result = NULL;
 *   a2l2json_code code = a2l2json_convert_file("engine.a2l", NULL, &result);
 *   if (code == A2L2JSON_OK) {
 *     size_t size;
 *     const char* document = a2l2json_document(result, &size);
 *     fwrite(document, 1, size, stdout);
 *   } else {
 *     fprintf(stderr, "%s\n", a2l2json_error(result));
 *   }
 *   a2l2json_free(result);
 *
 * Everything that a conversion gives belongs to its result: what the functions below point to is
 * there until a2l2json_free(), and is freed by nothing else. Every function that asks something of
 * a result also takes NULL, and finds nothing there.
 *
 * There is no global state: any number of threads may convert at the same time. A result may be
 * looked at by several threads at once, and freed by any of them when the others are done.
 *
 * No C++ exception leaves these functions.
 */
#ifndef A2L2JSON_H
#define A2L2JSON_H

#include <stddef.h>

#if defined(_WIN32) && defined(A2L2JSON_BUILDS_LIBRARY)
#define A2L2JSON_API __declspec(dllexport)
#elif defined(_WIN32) && !defined(A2L2JSON_STATIC_LIBRARY)
#define A2L2JSON_API __declspec(dllimport)
#elif defined(__GNUC__)
#define A2L2JSON_API __attribute__((visibility("default")))
#else
#define A2L2JSON_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** What became of a call. Further codes may come; the numbers of these stay. */
typedef enum a2l2json_code {
  A2L2JSON_OK = 0,            /**< the document is there, with or without warnings */
  A2L2JSON_NOT_A2L = 1,       /**< nothing of A2L is in the input, as in a compressed or an empty
                                   file; where the program a2l2json would write a document (that
                                   of an empty project), it is there */
  A2L2JSON_NOT_CONVERTED = 2, /**< the text holds an error, which is the last of the diagnostics */
  A2L2JSON_NOT_READ = 3,      /**< the file cannot be opened, or not be read to its end */
  A2L2JSON_NOT_WRITTEN = 4,   /**< the caller's `write` did not take the document */
  A2L2JSON_NO_MEMORY = 5,     /**< memory ran out; there may be no result */
  A2L2JSON_BAD_ARGUMENT = 6,  /**< an argument is wrong; there may be no result */
  A2L2JSON_NOT_AVAILABLE = 7, /**< the options ask for what this library cannot do */
  A2L2JSON_INTERNAL_ERROR = 8 /**< a fault of the library */
} a2l2json_code;

/** One sentence about a code in general, as in "Memory ran out."; never NULL. */
A2L2JSON_API const char* a2l2json_code_text(a2l2json_code code);

/** The version of the library, as in "1.0.0". */
A2L2JSON_API const char* a2l2json_version(void);

/* ------------------------------------------------------------------------------------------ */
/* Converting */

/** Everything that a conversion gave. */
typedef struct a2l2json_result a2l2json_result;

/**
 * Receives the document piece by piece. `context` is that of the options. Anything but 0 ends the
 * conversion with A2L2JSON_NOT_WRITTEN.
 */
typedef int (*a2l2json_write)(void* context, const char* bytes, size_t size);

/**
 * How to convert. Begin with A2L2JSON_OPTIONS_INIT, or with zeros and the size, and set what is
 * wanted; all that is zero has its ordinary meaning. Later versions may have further members.
 */
typedef struct a2l2json_options {
  /** sizeof(a2l2json_options). */
  size_t size;

  /**
   * Not 0: the text is mended first. It is read as the ASAP2 standard means it, whatever its
   * layout, and laid out anew so that nothing of it is lost in the document; a2l2json_mended() is
   * that text, and the findings tell what would have been lost, and what is lost all the same. 0:
   * the document is, to the byte, the one that the program a2l2json writes.
   */
  int mend;

  /**
   * What to call the text in diagnostics, findings and sentences; NULL: by its path, or by nothing
   * where it comes from memory.
   */
  const char* name;

  /**
   * For mending, where text in memory lies: the files that it includes are read from this folder
   * and those below it; an empty text is the current folder. NULL: none is read. The files that a
   * file includes are read from its own folder and those below, whatever this says.
   */
  const char* folder;

  /**
   * Where to put the document, instead of keeping it in the result, so that it is never in memory
   * as a whole. It is called for the first time when all of the input has been read.
   */
  a2l2json_write write;
  /** Handed to `write`. */
  void* context;
} a2l2json_options;

#define A2L2JSON_OPTIONS_INIT \
  { sizeof(a2l2json_options), 0, NULL, NULL, NULL, NULL }

/**
 * Converts `size` bytes of A2L text in memory, which need to stay until the call ends. `options`
 * may be NULL. `*result` is what came of it, whatever the code; the caller frees it. Only where
 * memory ran out it is NULL.
 */
A2L2JSON_API a2l2json_code a2l2json_convert_text(const char* text, size_t size,
                                                 const a2l2json_options* options,
                                                 a2l2json_result** result);

/** The same for the file at `path`, which ends with a zero byte; on Windows it is UTF-8. */
A2L2JSON_API a2l2json_code a2l2json_convert_file(const char* path, const a2l2json_options* options,
                                                 a2l2json_result** result);

/** Frees a result with all that belongs to it. */
A2L2JSON_API void a2l2json_free(a2l2json_result* result);

/* ------------------------------------------------------------------------------------------ */
/* What came of it */

/** The code that the conversion gave; A2L2JSON_NO_MEMORY for NULL. */
A2L2JSON_API a2l2json_code a2l2json_result_code(const a2l2json_result* result);

/**
 * A sentence for a person about why it is not A2L2JSON_OK, with the path and the line where there
 * are such; the empty text where it is. It ends with a zero byte and is never NULL.
 */
A2L2JSON_API const char* a2l2json_error(const a2l2json_result* result);

/**
 * The JSON document: one line without a line feed, `*size` bytes, behind which there is a zero
 * byte. Bytes of texts are those of the input, so it is UTF-8 where the input is. NULL, and size
 * 0, where there is none, or where `write` got it.
 */
A2L2JSON_API const char* a2l2json_document(const a2l2json_result* result, size_t* size);

/**
 * The warnings and errors as the program a2l2json prints them, a line each, `*size` bytes, behind
 * which there is a zero byte. They may hold any bytes of the input.
 */
A2L2JSON_API const char* a2l2json_messages(const a2l2json_result* result, size_t* size);

/** What a diagnostic is about. Further kinds may come; the numbers of these stay. */
typedef enum a2l2json_kind {
  A2L2JSON_WRONG_PARAMETERS = 0,     /**< parameters of a keyword could not be read */
  A2L2JSON_NEED_MORE_PARAMETERS = 1, /**< a keyword ended before all its parameters were there */
  A2L2JSON_WRONG_RAW_CONTENT = 2,    /**< a block that is kept as text could not be read */
  A2L2JSON_UNEXPECTED_ELEMENT = 3,   /**< a line begins with an unknown word */
  A2L2JSON_UNTERMINATED_COMMENT = 4, /**< the file ends inside a block comment */
  A2L2JSON_UNEXPECTED_BEGIN = 5,     /**< /begin before a word that opens no block */
  A2L2JSON_REFUSED_ELEMENT = 6,      /**< a keyword that may not stand in the open block */
  A2L2JSON_END_DOES_NOT_MATCH = 7,   /**< /end names another block than the open one */
  A2L2JSON_BEGIN_MISSING = 8,        /**< a block's keyword without /begin */
  A2L2JSON_NO_PARENT_AT_END = 9,     /**< /end outside of everything */
  A2L2JSON_NO_PARENT = 10            /**< an element outside of everything */
} a2l2json_kind;

typedef enum a2l2json_severity {
  A2L2JSON_WARNING = 0, /**< the read went on */
  A2L2JSON_ERROR = 1    /**< the read ended there */
} a2l2json_severity;

/** One warning or error. Later versions may have further members behind these. */
typedef struct a2l2json_diagnostic {
  size_t line; /**< number of the physical line, the first being 1; where the text was mended, of
                    the line of `file` at which the line of the mended text begins */
  a2l2json_severity severity;
  a2l2json_kind kind;
  const char* kind_name; /**< a name of the kind that stays, as in "unexpected-element" */
  const char* text;      /**< as in "unexpected element COLOUR"; may hold any bytes of the input */
  size_t text_size;      /**< of the text, behind which there is a zero byte */
  const char* file;      /**< the name of the file that it is in, as in a2l2json_finding */
} a2l2json_diagnostic;

/** How many diagnostics there are. */
A2L2JSON_API size_t a2l2json_diagnostic_count(const a2l2json_result* result);

/** The diagnostic at `index`, in the order of the file; NULL at and behind the end. */
A2L2JSON_API const a2l2json_diagnostic* a2l2json_diagnostic_at(const a2l2json_result* result,
                                                               size_t index);

/* ------------------------------------------------------------------------------------------ */
/* What came of mending */

/** The mended text, as the document; NULL if the options did not ask for mending. */
A2L2JSON_API const char* a2l2json_mended(const a2l2json_result* result, size_t* size);

/** One thing that the layout of the text would cost, or that is lost whatever the layout. Later
 * versions may have further members behind these. */
typedef struct a2l2json_finding {
  const char* rule; /**< a name that stays, as in "same-line" */
  const char* file; /**< the file that it is in: the name that the options or the path give;
                         of an included file its whole path, with slashes, in UTF-8 */
  size_t line;      /**< the first being 1 */
  size_t column;    /**< in bytes, the first being 1 */
  const char* text; /**< what is found there; may hold any bytes of the input */
  size_t text_size; /**< of the text, behind which there is a zero byte */
  int mended;       /**< 1: the document has it all the same. 0: it is lost */
} a2l2json_finding;

/** How many findings there are. */
A2L2JSON_API size_t a2l2json_finding_count(const a2l2json_result* result);

/** The finding at `index`, in the order of the text; NULL at and behind the end. */
A2L2JSON_API const a2l2json_finding* a2l2json_finding_at(const a2l2json_result* result,
                                                         size_t index);

#ifdef __cplusplus
}
#endif

#endif /* A2L2JSON_H */
